-- The load file of table.txt: six columns of the activity, results from the fifteenth on. Texts stay
-- as they are, so that everything is read as text; the order is that of the rows and, within one, of
-- the columns.
CREATE TEMP TABLE source AS
  SELECT row_number() OVER () AS number, * FROM read_csv('table.txt', delim = '\t', header = true,
    all_varchar = true, quote = '', escape = '', normalize_names = false, null_padding = true);

CREATE TEMP TABLE results AS
  SELECT column_name AS name, column_index AS place FROM duckdb_columns()
  WHERE table_name = 'source' AND column_index > 15;

COPY (
  WITH row_fields AS (
    SELECT number, '~' || coalesce(Station, '') || '~~' || coalesce(Date, '') || '~' ||
      CASE WHEN length(Time) = 3 THEN '0' || Time ELSE coalesce(Time, '') END || '~~' ||
      CASE WHEN coalesce(Sample, '') = '' THEN 'LAKE-' || number ELSE trim(Sample, ' ') END || '~' ||
      coalesce(trim(Comments, ' '), '') || '~~' || trim(coalesce(Depth, '') || '~~', ' ') ||
      '~~~~~~~~' AS activity,
    COLUMNS(* EXCLUDE (Station, Date, Time, Sample, Depth, Comments, Crew, Lake, Basin, Visit,
      Weather, Wind, Method, Batch, number))
    FROM source),
  tall AS (UNPIVOT row_fields ON COLUMNS(* EXCLUDE (number, activity)) INTO NAME name VALUE cell),
  values_found AS (
    SELECT number, activity, name,
      CASE WHEN trim(cell, ' ') IN ('ND', 'nd', '*Non-detect') THEN '*Non-detect'
           WHEN trim(cell, ' ') = '*Present >QL' THEN '*Present >QL'
           WHEN cell LIKE '<%' OR cell LIKE '%<' THEN '*Non-detect'
           WHEN cell LIKE '%>' THEN '*Present >QL'
           ELSE trim(cell, ' ') END AS value
    FROM tall)
  SELECT activity || name || '~~~~~~~~~~' || value || '~~~' || chr(13) AS line
  FROM values_found JOIN results USING (name)
  WHERE value <> ''
  ORDER BY number, place)
TO 'duckdb.txt' (FORMAT csv, HEADER false, QUOTE '', ESCAPE '', DELIMITER '\x01');
