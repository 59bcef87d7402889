-- A little of an invented KELDAR for tests, in words that SQLite and PostgreSQL both take.

CREATE TABLE tsmorgan (org_id CHAR(8) COLLATE RTRIM, name VARCHAR(60));
INSERT INTO tsmorgan VALUES
  ('LAKES   ', 'Lake watch'),
  ('RIVERS  ', NULL),
  ('ZZZZZZZZ', 'No organization');

-- Collection procedures name their organization in a column of another width.
CREATE TABLE tsrfldpr (tsrfldpr_org_id CHAR(10) COLLATE RTRIM, id_code CHAR(4) COLLATE RTRIM,
  name VARCHAR(60));
CREATE INDEX tsrfldpr_org ON tsrfldpr (tsrfldpr_org_id);
INSERT INTO tsrfldpr VALUES
  ('LAKES     ', 'P1  ', 'Grab'),
  ('LAKES     ', 'P2  ', 'Plankton net'),
  ('RIVERS    ', 'P3  ', 'Grün €');

CREATE TABLE tsrgrcfg (tsrgrcfg_org_id CHAR(8) COLLATE RTRIM, id_code VARCHAR(10),
  tsrfldgr_is_number INTEGER);
INSERT INTO tsrgrcfg VALUES ('LAKES   ', 'C1', 1), ('LAKES   ', 'C2', 2), ('LAKES   ', 'C3', 9);

CREATE TABLE tsrfldgr (tsrfldgr_is_number INTEGER, id_code VARCHAR(10));
INSERT INTO tsrfldgr VALUES (1, 'NET'), (2, 'GRAB');

CREATE TABLE tsruom (short_form_name VARCHAR(10), description_text VARCHAR(60));
INSERT INTO tsruom VALUES ('mg/l', 'milligrams per litre'), ('MG', 'a\b'), ('%', 'per cent');
