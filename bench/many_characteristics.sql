-- A hundred thousand characteristics behind those of the sample database, for SQLite and PostgreSQL.
INSERT INTO tsrchar (tsrchar_is_number, search_name, display_name, d_scr_type_cd)
WITH RECURSIVE number(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM number WHERE n < 100000)
SELECT 1000000 + n,
       'COMPOUND ' || n || ', TOTAL AS MEASURED IN WATER',
       'Compound ' || n || ', total as measured in water',
       CASE WHEN n % 3 = 0 THEN 'TAXA' ELSE 'PHYS' END
FROM number;
