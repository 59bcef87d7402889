-- The sample database: what KELDAR holds for three invented organizations that watch over a lake, a
-- river and a harbor. All organizations, people, places, procedures and readings are invented; only
-- the names of characteristics, taxa and units are those of the field.
--
-- SQLite 3.40 and PostgreSQL 15 both take this script as it stands. Identifiers are CHAR, padded
-- with blanks to their width as the central database keeps them, and compare without the padding:
-- by the collation RTRIM in SQLite, by the type itself in PostgreSQL, which only wants a collation
-- of that name to be there beforehand:
--
--     CREATE COLLATION rtrim FROM "C";
--
-- Names are VARCHAR, unpadded. What is not known is NULL, never an empty text. Every column that a
-- statement joins or filters by leads an index; statistics (ANALYZE) are left out on purpose, since
-- planners that have them choose other ways than those the statements were tried with.

BEGIN;

-- The organizations that report to the database. ZZZZZZZZ is the dummy that every list of
-- organizations leaves out.
CREATE TABLE tsmorgan (
    org_id CHAR(8) COLLATE RTRIM NOT NULL,
    name   VARCHAR(60) NOT NULL,
    PRIMARY KEY (org_id)
);
INSERT INTO tsmorgan (org_id, name) VALUES
    ('ALDER   ', 'Alder River Watershed Council'),
    ('FENMOOR ', 'Fenmoor Harbor Authority, Water Quality Section'),
    ('LONGLAKE', 'Long Lake Association'),
    ('ZZZZZZZZ', 'Dummy organization');

-- Stations. No statement reads them; the data loggers below stand at them.
CREATE TABLE tsmstatn (
    tsmstatn_is_number NUMERIC(12) NOT NULL,
    tsmstatn_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    identification_cd  CHAR(15) COLLATE RTRIM NOT NULL,
    name               VARCHAR(60) NOT NULL,
    PRIMARY KEY (tsmstatn_is_number, tsmstatn_org_id),
    FOREIGN KEY (tsmstatn_org_id) REFERENCES tsmorgan (org_id)
);
CREATE INDEX tsmstatn_organization ON tsmstatn (tsmstatn_org_id);
INSERT INTO tsmstatn (tsmstatn_is_number, tsmstatn_org_id, identification_cd, name) VALUES
    (101, 'LONGLAKE', 'LL-01          ', 'Long Lake, north basin, deepest point'),
    (102, 'LONGLAKE', 'LL-02          ', 'Long Lake, south basin, deepest point'),
    (103, 'LONGLAKE', 'LL-03          ', 'Long Lake, outlet at the old mill'),
    (104, 'LONGLAKE', 'LL-04          ', 'Long Lake, mouth of Otter Brook'),
    (121, 'ALDER   ', 'AR-012         ', 'Alder River at Stony Ford'),
    (122, 'ALDER   ', 'AR-031         ', 'Alder River below the paper mill'),
    (123, 'ALDER   ', 'AR-047         ', 'Alder River at the gauge, Weir Street'),
    (141, 'FENMOOR ', 'FH-PIER1       ', 'Fenmoor Harbor, end of pier 1'),
    (142, 'FENMOOR ', 'FH-GATE        ', 'Fenmoor Harbor, tide gate');

-- Trips: journeys on which stations were visited. The number of a trip is text, since statements
-- compare it with text.
CREATE TABLE tsrtrip (
    tsrtrip_is_number CHAR(8) COLLATE RTRIM NOT NULL,
    tsrtrip_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    id_code           CHAR(15) COLLATE RTRIM NOT NULL,
    name              VARCHAR(60) NOT NULL,
    PRIMARY KEY (tsrtrip_is_number, tsrtrip_org_id),
    FOREIGN KEY (tsrtrip_org_id) REFERENCES tsmorgan (org_id)
);
CREATE INDEX tsrtrip_organization ON tsrtrip (tsrtrip_org_id);
INSERT INTO tsrtrip (tsrtrip_is_number, tsrtrip_org_id, id_code, name) VALUES
    ('201     ', 'LONGLAKE', 'LL-2003        ', 'Long Lake, season of 2003'),
    ('202     ', 'LONGLAKE', 'LL-2004        ', 'Long Lake, season of 2004'),
    ('203     ', 'LONGLAKE', 'LL-2004-ICE    ', 'Long Lake under ice, winter of 2004'),
    ('221     ', 'ALDER   ', 'AR-2004-SPR    ', 'Alder River, spring survey 2004'),
    ('222     ', 'ALDER   ', 'AR-2004-SUM    ', 'Alder River, summer low flow 2004'),
    ('223     ', 'ALDER   ', 'AR-2004-AUT    ', 'Alder River, autumn survey 2004'),
    ('241     ', 'FENMOOR ', 'FH-2004        ', 'Fenmoor Harbor, servicing of loggers 2004');

-- Projects: what results are collected for.
CREATE TABLE tsmproj (
    tsmproj_is_number NUMERIC(12) NOT NULL,
    tsmproj_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    identification_cd CHAR(8) COLLATE RTRIM NOT NULL,
    name              VARCHAR(60) NOT NULL,
    PRIMARY KEY (tsmproj_is_number, tsmproj_org_id),
    FOREIGN KEY (tsmproj_org_id) REFERENCES tsmorgan (org_id)
);
CREATE INDEX tsmproj_organization ON tsmproj (tsmproj_org_id);
INSERT INTO tsmproj (tsmproj_is_number, tsmproj_org_id, identification_cd, name) VALUES
    (301, 'LONGLAKE', 'ACIDRAIN', 'Sensitivity of Long Lake to acid rain'),
    (302, 'LONGLAKE', 'BASELINE', 'Long Lake baseline monitoring'),
    (303, 'LONGLAKE', 'ICECOVER', 'Oxygen under ice'),
    (304, 'LONGLAKE', 'MILFOIL ', 'Spread of water milfoil'),
    (321, 'ALDER   ', 'BENTHOS ', 'Stream invertebrates of the Alder River'),
    (322, 'ALDER   ', 'MILLTMDL', 'Load study below the paper mill'),
    (323, 'ALDER   ', 'NUTRIENT', 'Nutrients of the Alder River basin'),
    (324, 'ALDER   ', 'SEDTOX  ', 'Metals and organic compounds in river sediment'),
    (341, 'FENMOOR ', 'DREDGE  ', 'Turbidity during dredging'),
    (342, 'FENMOOR ', 'TIDEGATE', 'Salinity at the tide gate');

-- Trip-project assignments: which projects a trip was made for. ICECOVER has none.
CREATE TABLE tsrtpa (
    tsrtrip_is_number CHAR(8) COLLATE RTRIM NOT NULL,
    tsrtrip_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    tsmproj_is_number NUMERIC(12) NOT NULL,
    tsmproj_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    PRIMARY KEY (tsrtrip_is_number, tsrtrip_org_id, tsmproj_is_number, tsmproj_org_id),
    FOREIGN KEY (tsrtrip_is_number, tsrtrip_org_id)
        REFERENCES tsrtrip (tsrtrip_is_number, tsrtrip_org_id),
    FOREIGN KEY (tsmproj_is_number, tsmproj_org_id)
        REFERENCES tsmproj (tsmproj_is_number, tsmproj_org_id)
);
CREATE INDEX tsrtpa_project ON tsrtpa (tsmproj_is_number, tsmproj_org_id);
INSERT INTO tsrtpa (tsrtrip_is_number, tsrtrip_org_id, tsmproj_is_number, tsmproj_org_id) VALUES
    ('201     ', 'LONGLAKE', 302, 'LONGLAKE'),
    ('201     ', 'LONGLAKE', 304, 'LONGLAKE'),
    ('202     ', 'LONGLAKE', 301, 'LONGLAKE'),
    ('202     ', 'LONGLAKE', 302, 'LONGLAKE'),
    ('203     ', 'LONGLAKE', 302, 'LONGLAKE'),
    ('221     ', 'ALDER   ', 321, 'ALDER   '),
    ('221     ', 'ALDER   ', 323, 'ALDER   '),
    ('222     ', 'ALDER   ', 322, 'ALDER   '),
    ('222     ', 'ALDER   ', 323, 'ALDER   '),
    ('223     ', 'ALDER   ', 321, 'ALDER   '),
    ('223     ', 'ALDER   ', 324, 'ALDER   '),
    ('241     ', 'FENMOOR ', 341, 'FENMOOR '),
    ('241     ', 'FENMOOR ', 342, 'FENMOOR ');

-- Persons who collect samples. Those who have left are not active any more and are not offered.
CREATE TABLE tsmpersn (
    tsmpersn_is_number NUMERIC(12) NOT NULL,
    tsmpersn_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    last_name          VARCHAR(30) NOT NULL,
    first_name         VARCHAR(30) NOT NULL,
    active_indicatr_cd CHAR(1) COLLATE RTRIM NOT NULL,
    PRIMARY KEY (tsmpersn_is_number, tsmpersn_org_id),
    FOREIGN KEY (tsmpersn_org_id) REFERENCES tsmorgan (org_id)
);
CREATE INDEX tsmpersn_organization ON tsmpersn (tsmpersn_org_id, active_indicatr_cd);
INSERT INTO tsmpersn
    (tsmpersn_is_number, tsmpersn_org_id, last_name, first_name, active_indicatr_cd) VALUES
    (401, 'LONGLAKE', 'Doe',        'Jane',      'Y'),
    (402, 'LONGLAKE', 'Roe',        'Richard',   'Y'),
    (403, 'LONGLAKE', 'Åkerman',    'Birgit',    'Y'),
    (404, 'LONGLAKE', 'Whitcomb',   'Amos',      'N'),
    (405, 'LONGLAKE', 'Peña',       'Luz María', 'Y'),
    (421, 'ALDER   ', 'Brandt',     'Käthe',     'Y'),
    (422, 'ALDER   ', 'O''Dell',    'Sean',      'Y'),
    (423, 'ALDER   ', 'Tarn',       'Ida',       'Y'),
    (424, 'ALDER   ', 'Marsh',      'Peter',     'N'),
    (425, 'ALDER   ', 'van Houten', 'Joris',     'Y'),
    (441, 'FENMOOR ', 'Keel',       'Samantha',  'Y'),
    (442, 'FENMOOR ', 'Sounder',    'Tom',       'N');

-- Sample preservation and transport: how a sample reaches the laboratory.
CREATE TABLE tsrsdp (
    tsrsdp_is_number NUMERIC(12) NOT NULL,
    tsrsdp_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    id_code          CHAR(10) COLLATE RTRIM NOT NULL,
    name             VARCHAR(60) NOT NULL,
    PRIMARY KEY (tsrsdp_is_number, tsrsdp_org_id),
    FOREIGN KEY (tsrsdp_org_id) REFERENCES tsmorgan (org_id)
);
CREATE INDEX tsrsdp_organization ON tsrsdp (tsrsdp_org_id);
INSERT INTO tsrsdp (tsrsdp_is_number, tsrsdp_org_id, id_code, name) VALUES
    (501, 'LONGLAKE', 'FROZEN    ', 'Filter frozen in foil, in the dark'),
    (502, 'LONGLAKE', 'ICE       ', 'Plain bottle on ice'),
    (503, 'LONGLAKE', 'ICEH2SO4  ', 'Sulfuric acid to pH below 2, on ice'),
    (504, 'LONGLAKE', 'LUGOL     ', 'Lugol''s iodine, amber bottle'),
    (521, 'ALDER   ', 'ETHANOL   ', 'Ethanol 80 percent, jar'),
    (522, 'ALDER   ', 'HNO3      ', 'Nitric acid to pH below 2'),
    (523, 'ALDER   ', 'ICE       ', 'Plain bottle on ice'),
    (524, 'ALDER   ', 'ICEGLASS  ', 'Amber glass on ice, no headspace');

-- Field gear. Gear belongs to no organization. There is none of the type Electrofisher.
CREATE TABLE tsrfldgr (
    tsrfldgr_is_number NUMERIC(12) NOT NULL,
    id_code            CHAR(10) COLLATE RTRIM NOT NULL,
    type_name          VARCHAR(30) NOT NULL,
    name               VARCHAR(60) NOT NULL,
    PRIMARY KEY (tsrfldgr_is_number)
);
CREATE INDEX tsrfldgr_type ON tsrfldgr (type_name);
CREATE INDEX tsrfldgr_id ON tsrfldgr (id_code);
INSERT INTO tsrfldgr (tsrfldgr_is_number, id_code, type_name, name) VALUES
    (601, 'BAILER    ', 'Water Sampler', 'Bailer, polyethylene'),
    (602, 'BUCKET    ', 'Water Sampler', 'Bucket on a rope'),
    (603, 'KEMMERER  ', 'Water Sampler', 'Kemmerer bottle'),
    (604, 'TUBE      ', 'Water Sampler', 'Weighted tube, depth-integrating'),
    (605, 'VANDORN   ', 'Water Sampler', 'Van Dorn bottle'),
    (611, 'PERISTAL  ', 'Pump',          'Peristaltic pump'),
    (612, 'SUBPUMP   ', 'Pump',          'Submersible pump'),
    (621, 'PLNET64   ', 'Plankton Net',  'Plankton net, mesh 64 um'),
    (622, 'PLNET153  ', 'Plankton Net',  'Plankton net, mesh 153 um'),
    (631, 'DNET      ', 'Kick Net',      'D-frame net, mesh 500 um'),
    (632, 'SURBER    ', 'Kick Net',      'Surber sampler'),
    (641, 'EKMAN     ', 'Bottom Grab',   'Ekman grab'),
    (642, 'PONAR     ', 'Bottom Grab',   'Ponar grab'),
    (643, 'PONARP    ', 'Bottom Grab',   'Petite Ponar grab'),
    (651, 'GRAVCORE  ', 'Corer',         'Gravity corer'),
    (652, 'PISTCORE  ', 'Corer',         'Piston corer'),
    (661, 'HIVOL     ', 'Air Sampler',   'High-volume filter sampler'),
    (662, 'RAINGAGE  ', 'Air Sampler',   'Wet deposition collector');

-- Gear configurations: how an organization sets up its gear. A bucket, a bailer and most nets are used
-- as they come and have none.
CREATE TABLE tsrgrcfg (
    tsrgrcfg_is_number NUMERIC(12) NOT NULL,
    tsrgrcfg_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    id_code            CHAR(10) COLLATE RTRIM NOT NULL,
    name               VARCHAR(60) NOT NULL,
    tsrfldgr_is_number NUMERIC(12) NOT NULL,
    PRIMARY KEY (tsrgrcfg_is_number, tsrgrcfg_org_id),
    FOREIGN KEY (tsrgrcfg_org_id) REFERENCES tsmorgan (org_id),
    FOREIGN KEY (tsrfldgr_is_number) REFERENCES tsrfldgr (tsrfldgr_is_number)
);
CREATE INDEX tsrgrcfg_organization ON tsrgrcfg (tsrgrcfg_org_id);
CREATE INDEX tsrgrcfg_gear ON tsrgrcfg (tsrfldgr_is_number);
INSERT INTO tsrgrcfg (tsrgrcfg_is_number, tsrgrcfg_org_id, id_code, name, tsrfldgr_is_number) VALUES
    (701, 'LONGLAKE', 'KEM-1L    ', 'Kemmerer bottle of 1.2 l, marked line of 30 m', 603),
    (702, 'LONGLAKE', 'KEM-4L    ', 'Kemmerer bottle of 4 l, winch',                 603),
    (703, 'LONGLAKE', 'TUBE-5M   ', 'Tube of 5 m, inner diameter 25 mm',             604),
    (704, 'LONGLAKE', 'NET-VERT  ', 'Net of 30 cm mouth, vertical tow from 10 m',    621),
    (721, 'ALDER   ', 'PUMP-LOW  ', 'Peristaltic pump, 0.2 l/min, silicone tubing',  611),
    (722, 'ALDER   ', 'PUMP-STD  ', 'Peristaltic pump, 1 l/min, silicone tubing',    611),
    (723, 'ALDER   ', 'VD-HORZ   ', 'Van Dorn bottle, horizontal',                   605),
    (724, 'ALDER   ', 'DNET-100  ', 'D-frame net, 100 m reach, 20 jabs',             631),
    (725, 'ALDER   ', 'PONAR-W   ', 'Ponar grab on a winch, washed through 500 um',  642);

-- Sample collection procedures. The gear type is NULL where a procedure needs no gear. The harbor
-- authority only measures in the field and has none.
CREATE TABLE tsrfldpr (
    tsrfldpr_is_number NUMERIC(12) NOT NULL,
    tsrfldpr_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    id_code            CHAR(10) COLLATE RTRIM NOT NULL,
    name               VARCHAR(60) NOT NULL,
    fld_gear_type_name VARCHAR(30),
    PRIMARY KEY (tsrfldpr_is_number, tsrfldpr_org_id),
    FOREIGN KEY (tsrfldpr_org_id) REFERENCES tsmorgan (org_id)
);
CREATE INDEX tsrfldpr_organization ON tsrfldpr (tsrfldpr_org_id);
CREATE INDEX tsrfldpr_gear_type ON tsrfldpr (fld_gear_type_name);
INSERT INTO tsrfldpr (tsrfldpr_is_number, tsrfldpr_org_id, id_code, name, fld_gear_type_name) VALUES
    (801, 'LONGLAKE', 'GRAB1     ', 'Grab at the surface, by hand',            NULL),
    (802, 'LONGLAKE', 'GRABDEEP  ', 'Grab at a depth',                         'Water Sampler'),
    (803, 'LONGLAKE', 'PLANKTON  ', 'Vertical plankton tow',                   'Plankton Net'),
    (804, 'LONGLAKE', 'FISHSURV  ', 'Fish survey along the shore',             'Electrofisher'),
    (805, 'LONGLAKE', 'CORE      ', 'Sediment core',                           'Corer'),
    (821, 'ALDER   ', 'DIPBANK   ', 'Grab from the bank, by pole',             NULL),
    (822, 'ALDER   ', 'EWI       ', 'Equal-width increments across the river', 'Water Sampler'),
    (823, 'ALDER   ', 'KICK      ', 'Kick sample of a riffle',                 'Kick Net'),
    (824, 'ALDER   ', 'PUMPED    ', 'Pumped through a line filter',            'Pump'),
    (825, 'ALDER   ', 'SEDGRAB   ', 'Grab of surface sediment',                'Bottom Grab'),
    (826, 'ALDER   ', 'DEPOSIT   ', 'Wet deposition, one week',                'Air Sampler');

-- Laboratories that analyze for an organization: the one of the college, and the Bridge Street one.
CREATE TABLE tsrlab (
    tsrlab_is_number NUMERIC(12) NOT NULL,
    tsrlab_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    id_code          CHAR(8) COLLATE RTRIM NOT NULL,
    name             VARCHAR(60) NOT NULL,
    PRIMARY KEY (tsrlab_is_number, tsrlab_org_id),
    FOREIGN KEY (tsrlab_org_id) REFERENCES tsmorgan (org_id)
);
CREATE INDEX tsrlab_organization ON tsrlab (tsrlab_org_id);
INSERT INTO tsrlab (tsrlab_is_number, tsrlab_org_id, id_code, name) VALUES
    (901, 'LONGLAKE', 'BRIDGEST', 'Bridge Street Laboratory'),
    (902, 'LONGLAKE', 'COLLEGE ', 'Limnology Laboratory of the College'),
    (921, 'ALDER   ', 'BRIDGEST', 'Bridge Street Laboratory');

-- Units of measure.
CREATE TABLE tsruom (
    short_form_name  CHAR(10) COLLATE RTRIM NOT NULL,
    description_text VARCHAR(60) NOT NULL,
    PRIMARY KEY (short_form_name)
);
INSERT INTO tsruom (short_form_name, description_text) VALUES
    ('#/100 ml  ', 'number per 100 milliliters'),
    ('#/l       ', 'number per liter'),
    ('#/m2      ', 'number per square meter'),
    ('#/ml      ', 'number per milliliter'),
    ('%         ', 'percent'),
    ('% sat     ', 'percent of saturation'),
    ('BTU       ', 'British thermal units'),
    ('CU        ', 'color units'),
    ('FNU       ', 'formazin nephelometric units'),
    ('Hz        ', 'hertz'),
    ('JTU       ', 'Jackson turbidity units'),
    ('MPN/100 ml', 'most probable number per 100 milliliters'),
    ('NTU       ', 'nephelometric turbidity units'),
    ('None      ', 'no unit'),
    ('PCU       ', 'platinum-cobalt units'),
    ('TON       ', 'threshold odor number'),
    ('TU        ', 'toxicity units'),
    ('acre-ft   ', 'acre-feet'),
    ('atm       ', 'atmospheres'),
    ('cfs       ', 'cubic feet per second'),
    ('cfu/100 ml', 'colony-forming units per 100 milliliters'),
    ('cm        ', 'centimeters'),
    ('cm/sec    ', 'centimeters per second'),
    ('count     ', 'count'),
    ('deg       ', 'degrees of arc'),
    ('deg C     ', 'degrees Celsius'),
    ('deg F     ', 'degrees Fahrenheit'),
    ('ft        ', 'feet'),
    ('ft/sec    ', 'feet per second'),
    ('g         ', 'grams'),
    ('g/kg      ', 'grams per kilogram'),
    ('g/m2      ', 'grams per square meter'),
    ('gal/min   ', 'gallons per minute'),
    ('hours     ', 'hours'),
    ('in        ', 'inches'),
    ('kg        ', 'kilograms'),
    ('l/sec     ', 'liters per second'),
    ('lb/day    ', 'pounds per day'),
    ('m         ', 'meters'),
    ('m/sec     ', 'meters per second'),
    ('m2        ', 'square meters'),
    ('m3/sec    ', 'cubic meters per second'),
    ('mS/cm     ', 'millisiemens per centimeter'),
    ('mV        ', 'millivolts'),
    ('mbar      ', 'millibars'),
    ('meq/l     ', 'milliequivalents per liter'),
    ('mg        ', 'milligrams'),
    ('mg/kg     ', 'milligrams per kilogram'),
    ('mg/l      ', 'milligrams per liter'),
    ('mg/m2     ', 'milligrams per square meter'),
    ('mg/m3     ', 'milligrams per cubic meter'),
    ('mgd       ', 'million gallons per day'),
    ('mi        ', 'miles'),
    ('mi/hr     ', 'miles per hour'),
    ('min       ', 'minutes'),
    ('ml/l      ', 'milliliters per liter'),
    ('mm        ', 'millimeters'),
    ('mmHg      ', 'millimeters of mercury'),
    ('mmol/l    ', 'millimoles per liter'),
    ('ng/g      ', 'nanograms per gram'),
    ('ng/l      ', 'nanograms per liter'),
    ('pCi/l     ', 'picocuries per liter'),
    ('pg/l      ', 'picograms per liter'),
    ('phi       ', 'phi units of grain size'),
    ('ppb       ', 'parts per billion'),
    ('ppm       ', 'parts per million'),
    ('ppt       ', 'parts per thousand'),
    ('psi       ', 'pounds per square inch'),
    ('psu       ', 'practical salinity units'),
    ('sec       ', 'seconds'),
    ('uE/m2/sec ', 'microeinsteins per square meter and second'),
    ('uS/cm     ', 'microsiemens per centimeter'),
    ('ueq/l     ', 'microequivalents per liter'),
    ('ug/g      ', 'micrograms per gram'),
    ('ug/kg     ', 'micrograms per kilogram'),
    ('ug/l      ', 'micrograms per liter'),
    ('ug/m3     ', 'micrograms per cubic meter'),
    ('um        ', 'micrometers'),
    ('umol/l    ', 'micromoles per liter'),
    ('volts     ', 'volts'),
    ('watts/m2  ', 'watts per square meter');

-- Characteristics: what is measured, counted or observed. The kind is PHYS physical, NUTR nutrients and
-- carbon, IONS major ions, METL metals and radioactivity, ORGN organic compounds, PEST pesticides, BIOL
-- biological, HABT habitat, TAXA a taxon that is counted. The unit is the usual one; taxa have none.
CREATE TABLE tsrchar (
    tsrchar_is_number NUMERIC(12) NOT NULL,
    search_name       VARCHAR(60) NOT NULL,
    display_name      VARCHAR(60) NOT NULL,
    d_scr_type_cd     CHAR(4) COLLATE RTRIM NOT NULL,
    uom_name          CHAR(10) COLLATE RTRIM,
    PRIMARY KEY (tsrchar_is_number),
    FOREIGN KEY (uom_name) REFERENCES tsruom (short_form_name)
);
CREATE INDEX tsrchar_kind ON tsrchar (d_scr_type_cd);
CREATE INDEX tsrchar_search_name ON tsrchar (search_name);
-- The search name is the display name in capitals, since the program searches in capitals.
INSERT INTO tsrchar (tsrchar_is_number, search_name, display_name, d_scr_type_cd, uom_name)
SELECT column1, UPPER(column2), column2, column3, column4 FROM (VALUES
    (1001, 'Temperature, air',                                             'PHYS', 'deg C     '),
    (1002, 'Temperature, sediment',                                        'PHYS', 'deg C     '),
    (1003, 'Temperature, water',                                           'PHYS', 'deg C     '),
    (1004, 'pH',                                                           'PHYS', 'None      '),
    (1005, 'Langelier index',                                              'PHYS', 'None      '),
    (1006, 'Odor, field description',                                      'PHYS', 'None      '),
    (1007, 'Weather, field description',                                   'PHYS', 'None      '),
    (1008, 'Cloud cover, field description',                               'PHYS', 'None      '),
    (1009, 'Specific conductance',                                         'PHYS', 'uS/cm     '),
    (1010, 'Specific conductance, field',                                  'PHYS', 'uS/cm     '),
    (1011, 'Salinity',                                                     'PHYS', 'psu       '),
    (1012, 'Depth, bottom',                                                'PHYS', 'm         '),
    (1013, 'Depth, Secchi disk',                                           'PHYS', 'm         '),
    (1014, 'Depth, snow cover',                                            'PHYS', 'm         '),
    (1015, 'Depth, thermocline',                                           'PHYS', 'm         '),
    (1016, 'Height, gauge',                                                'PHYS', 'm         '),
    (1017, 'Elevation, water surface',                                     'PHYS', 'm         '),
    (1018, 'Width, stream',                                                'PHYS', 'm         '),
    (1019, 'Ice thickness',                                                'PHYS', 'cm        '),
    (1020, 'Depth, sediment layer',                                        'PHYS', 'cm        '),
    (1021, 'Turbidity',                                                    'PHYS', 'NTU       '),
    (1022, 'Turbidity, field',                                             'PHYS', 'NTU       '),
    (1023, 'Turbidity, near infrared',                                     'PHYS', 'FNU       '),
    (1024, 'Color, apparent',                                              'PHYS', 'PCU       '),
    (1025, 'Color, true',                                                  'PHYS', 'PCU       '),
    (1026, 'Solids, dissolved',                                            'PHYS', 'mg/l      '),
    (1027, 'Solids, suspended',                                            'PHYS', 'mg/l      '),
    (1028, 'Solids, volatile suspended',                                   'PHYS', 'mg/l      '),
    (1029, 'Solids, fixed',                                                'PHYS', 'mg/l      '),
    (1030, 'Solids, total',                                                'PHYS', 'mg/l      '),
    (1031, 'Oxygen, dissolved',                                            'PHYS', 'mg/l      '),
    (1032, 'Oxygen demand, biochemical, 5 days',                           'PHYS', 'mg/l      '),
    (1033, 'Oxygen demand, chemical',                                      'PHYS', 'mg/l      '),
    (1034, 'Oxygen demand, ultimate',                                      'PHYS', 'mg/l      '),
    (1035, 'Residual chlorine, total',                                     'PHYS', 'mg/l      '),
    (1036, 'Residual chlorine, free',                                      'PHYS', 'mg/l      '),
    (1037, 'Solids, settleable',                                           'PHYS', 'ml/l      '),
    (1038, 'Oxygen, dissolved, percent of saturation',                     'PHYS', '% sat     '),
    (1039, 'Oxidation-reduction potential',                                'PHYS', 'mV        '),
    (1040, 'Flow, stream, instantaneous',                                  'PHYS', 'cfs       '),
    (1041, 'Flow, stream, mean daily',                                     'PHYS', 'cfs       '),
    (1042, 'Flow, tidal',                                                  'PHYS', 'cfs       '),
    (1043, 'Velocity, current',                                            'PHYS', 'm/sec     '),
    (1044, 'Velocity, wind',                                               'PHYS', 'm/sec     '),
    (1045, 'Direction, current',                                           'PHYS', 'deg       '),
    (1046, 'Direction, wind',                                              'PHYS', 'deg       '),
    (1047, 'Pressure, barometric',                                         'PHYS', 'mmHg      '),
    (1048, 'Precipitation, event',                                         'PHYS', 'mm        '),
    (1049, 'Precipitation, 24 hours',                                      'PHYS', 'mm        '),
    (1050, 'Evaporation, pan',                                             'PHYS', 'mm        '),
    (1051, 'Humidity, relative',                                           'PHYS', '%         '),
    (1052, 'Light transmission',                                           'PHYS', '%         '),
    (1053, 'Moisture content',                                             'PHYS', '%         '),
    (1054, 'Sand content',                                                 'PHYS', '%         '),
    (1055, 'Silt content',                                                 'PHYS', '%         '),
    (1056, 'Clay content',                                                 'PHYS', '%         '),
    (1057, 'Gravel content',                                               'PHYS', '%         '),
    (1058, 'Light, photosynthetically active',                             'PHYS', 'uE/m2/sec '),
    (1059, 'Radiation, solar',                                             'PHYS', 'watts/m2  '),
    (1060, 'Grain size, median',                                           'PHYS', 'phi       '),
    (1061, 'Odor, threshold number',                                       'PHYS', 'TON       '),
    (1101, 'Ammonia as N',                                                 'NUTR', 'mg/l      '),
    (1102, 'Ammonia, un-ionized as N',                                     'NUTR', 'mg/l      '),
    (1103, 'Carbon, inorganic',                                            'NUTR', 'mg/l      '),
    (1104, 'Carbon, organic',                                              'NUTR', 'mg/l      '),
    (1105, 'Carbon, total',                                                'NUTR', 'mg/l      '),
    (1106, 'Nitrate as N',                                                 'NUTR', 'mg/l      '),
    (1107, 'Nitrite as N',                                                 'NUTR', 'mg/l      '),
    (1108, 'Nitrate plus nitrite as N',                                    'NUTR', 'mg/l      '),
    (1109, 'Nitrogen, inorganic',                                          'NUTR', 'mg/l      '),
    (1110, 'Nitrogen, Kjeldahl',                                           'NUTR', 'mg/l      '),
    (1111, 'Nitrogen, organic',                                            'NUTR', 'mg/l      '),
    (1112, 'Nitrogen, total',                                              'NUTR', 'mg/l      '),
    (1113, 'Orthophosphate as P',                                          'NUTR', 'mg/l      '),
    (1114, 'Phosphorus, hydrolyzable as P',                                'NUTR', 'mg/l      '),
    (1115, 'Phosphorus, organic as P',                                     'NUTR', 'mg/l      '),
    (1116, 'Phosphorus, total as P',                                       'NUTR', 'mg/l      '),
    (1117, 'Silica as SiO2',                                               'NUTR', 'mg/l      '),
    (1118, 'Urea as N',                                                    'NUTR', 'mg/l      '),
    (1119, 'Nitrogen in sediment',                                         'NUTR', 'mg/kg     '),
    (1120, 'Phosphorus in sediment',                                       'NUTR', 'mg/kg     '),
    (1121, 'Phosphorus in sediment, extracted by sodium hydroxide',        'NUTR', 'mg/kg     '),
    (1122, 'Carbon, organic, in sediment',                                 'NUTR', 'g/kg      '),
    (1123, 'Nitrogen, Kjeldahl, ammonia plus organic, by block digester',  'NUTR', 'mg/l      '),
    (1151, 'Acidity as CaCO3',                                             'IONS', 'mg/l      '),
    (1152, 'Alkalinity as CaCO3',                                          'IONS', 'mg/l      '),
    (1153, 'Alkalinity, carbonate as CaCO3',                               'IONS', 'mg/l      '),
    (1154, 'Alkalinity, phenolphthalein as CaCO3',                         'IONS', 'mg/l      '),
    (1155, 'Bicarbonate',                                                  'IONS', 'mg/l      '),
    (1156, 'Boron',                                                        'IONS', 'mg/l      '),
    (1157, 'Bromide',                                                      'IONS', 'mg/l      '),
    (1158, 'Calcium',                                                      'IONS', 'mg/l      '),
    (1159, 'Carbon dioxide',                                               'IONS', 'mg/l      '),
    (1160, 'Carbonate',                                                    'IONS', 'mg/l      '),
    (1161, 'Chloride',                                                     'IONS', 'mg/l      '),
    (1162, 'Cyanide, free',                                                'IONS', 'mg/l      '),
    (1163, 'Cyanide, total',                                               'IONS', 'mg/l      '),
    (1164, 'Fluoride',                                                     'IONS', 'mg/l      '),
    (1165, 'Hardness as CaCO3',                                            'IONS', 'mg/l      '),
    (1166, 'Hardness, carbonate as CaCO3',                                 'IONS', 'mg/l      '),
    (1167, 'Iodide',                                                       'IONS', 'mg/l      '),
    (1168, 'Magnesium',                                                    'IONS', 'mg/l      '),
    (1169, 'Potassium',                                                    'IONS', 'mg/l      '),
    (1170, 'Sodium',                                                       'IONS', 'mg/l      '),
    (1171, 'Sulfate',                                                      'IONS', 'mg/l      '),
    (1172, 'Sulfide',                                                      'IONS', 'mg/l      '),
    (1173, 'Sulfite',                                                      'IONS', 'mg/l      '),
    (1174, 'Thiocyanate',                                                  'IONS', 'mg/l      '),
    (1175, 'Acid neutralizing capacity',                                   'IONS', 'ueq/l     '),
    (1176, 'Cations, sum',                                                 'IONS', 'ueq/l     '),
    (1177, 'Anions, sum',                                                  'IONS', 'ueq/l     '),
    (1178, 'Sodium adsorption ratio',                                      'IONS', 'None      '),
    (1201, 'Aluminum',                                                     'METL', 'ug/l      '),
    (1202, 'Antimony',                                                     'METL', 'ug/l      '),
    (1203, 'Arsenic',                                                      'METL', 'ug/l      '),
    (1204, 'Arsenic, trivalent',                                           'METL', 'ug/l      '),
    (1205, 'Barium',                                                       'METL', 'ug/l      '),
    (1206, 'Beryllium',                                                    'METL', 'ug/l      '),
    (1207, 'Bismuth',                                                      'METL', 'ug/l      '),
    (1208, 'Cadmium',                                                      'METL', 'ug/l      '),
    (1209, 'Cesium',                                                       'METL', 'ug/l      '),
    (1210, 'Chromium',                                                     'METL', 'ug/l      '),
    (1211, 'Chromium, hexavalent',                                         'METL', 'ug/l      '),
    (1212, 'Cobalt',                                                       'METL', 'ug/l      '),
    (1213, 'Copper',                                                       'METL', 'ug/l      '),
    (1214, 'Gold',                                                         'METL', 'ug/l      '),
    (1215, 'Iron',                                                         'METL', 'ug/l      '),
    (1216, 'Iron, ferrous',                                                'METL', 'ug/l      '),
    (1217, 'Lead',                                                         'METL', 'ug/l      '),
    (1218, 'Lithium',                                                      'METL', 'ug/l      '),
    (1219, 'Manganese',                                                    'METL', 'ug/l      '),
    (1220, 'Molybdenum',                                                   'METL', 'ug/l      '),
    (1221, 'Nickel',                                                       'METL', 'ug/l      '),
    (1222, 'Rubidium',                                                     'METL', 'ug/l      '),
    (1223, 'Selenium',                                                     'METL', 'ug/l      '),
    (1224, 'Silver',                                                       'METL', 'ug/l      '),
    (1225, 'Strontium',                                                    'METL', 'ug/l      '),
    (1226, 'Thallium',                                                     'METL', 'ug/l      '),
    (1227, 'Thorium',                                                      'METL', 'ug/l      '),
    (1228, 'Tin',                                                          'METL', 'ug/l      '),
    (1229, 'Titanium',                                                     'METL', 'ug/l      '),
    (1230, 'Tributyltin',                                                  'METL', 'ug/l      '),
    (1231, 'Tungsten',                                                     'METL', 'ug/l      '),
    (1232, 'Uranium',                                                      'METL', 'ug/l      '),
    (1233, 'Vanadium',                                                     'METL', 'ug/l      '),
    (1234, 'Zinc',                                                         'METL', 'ug/l      '),
    (1235, 'Zirconium',                                                    'METL', 'ug/l      '),
    (1236, 'Mercury',                                                      'METL', 'ng/l      '),
    (1237, 'Methylmercury',                                                'METL', 'ng/l      '),
    (1238, 'Gross alpha activity',                                         'METL', 'pCi/l     '),
    (1239, 'Gross beta activity',                                          'METL', 'pCi/l     '),
    (1240, 'Radium-226',                                                   'METL', 'pCi/l     '),
    (1241, 'Radium-228',                                                   'METL', 'pCi/l     '),
    (1242, 'Radon-222',                                                    'METL', 'pCi/l     '),
    (1243, 'Strontium-90',                                                 'METL', 'pCi/l     '),
    (1244, 'Tritium',                                                      'METL', 'pCi/l     '),
    (1245, 'Cesium-137',                                                   'METL', 'pCi/l     '),
    (1301, '1,1-Dichloroethane',                                           'ORGN', 'ug/l      '),
    (1302, '1,1,1-Trichloroethane',                                        'ORGN', 'ug/l      '),
    (1303, '1,2-Dichlorobenzene',                                          'ORGN', 'ug/l      '),
    (1304, '1,2-Dichloroethane',                                           'ORGN', 'ug/l      '),
    (1305, '1,2,4-Trichlorobenzene',                                       'ORGN', 'ug/l      '),
    (1306, '1,4-Dichlorobenzene',                                          'ORGN', 'ug/l      '),
    (1307, 'Acenaphthene',                                                 'ORGN', 'ug/l      '),
    (1308, 'Acenaphthylene',                                               'ORGN', 'ug/l      '),
    (1309, 'Acetone',                                                      'ORGN', 'ug/l      '),
    (1310, 'Anthracene',                                                   'ORGN', 'ug/l      '),
    (1311, 'Benzene',                                                      'ORGN', 'ug/l      '),
    (1312, 'Benzo[a]anthracene',                                           'ORGN', 'ug/l      '),
    (1313, 'Benzo[a]pyrene',                                               'ORGN', 'ug/l      '),
    (1314, 'Benzo[b]fluoranthene',                                         'ORGN', 'ug/l      '),
    (1315, 'Bisphenol A',                                                  'ORGN', 'ug/l      '),
    (1316, 'Bromoform',                                                    'ORGN', 'ug/l      '),
    (1317, 'Caffeine',                                                     'ORGN', 'ug/l      '),
    (1318, 'Carbon tetrachloride',                                         'ORGN', 'ug/l      '),
    (1319, 'Chlorobenzene',                                                'ORGN', 'ug/l      '),
    (1320, 'Chloroform',                                                   'ORGN', 'ug/l      '),
    (1321, 'Chrysene',                                                     'ORGN', 'ug/l      '),
    (1322, 'Dibenzofuran',                                                 'ORGN', 'ug/l      '),
    (1323, 'Diethyl phthalate',                                            'ORGN', 'ug/l      '),
    (1324, 'EDTA',                                                         'ORGN', 'ug/l      '),
    (1325, 'Ethylbenzene',                                                 'ORGN', 'ug/l      '),
    (1326, 'Fluoranthene',                                                 'ORGN', 'ug/l      '),
    (1327, 'Fluorene',                                                     'ORGN', 'ug/l      '),
    (1328, 'Formaldehyde',                                                 'ORGN', 'ug/l      '),
    (1329, 'Hexachlorobenzene',                                            'ORGN', 'ug/l      '),
    (1330, 'MTBE',                                                         'ORGN', 'ug/l      '),
    (1331, 'Methylene chloride',                                           'ORGN', 'ug/l      '),
    (1332, 'NTA',                                                          'ORGN', 'ug/l      '),
    (1333, 'Naphthalene',                                                  'ORGN', 'ug/l      '),
    (1334, 'Nitrobenzene',                                                 'ORGN', 'ug/l      '),
    (1335, 'Pentachlorophenol',                                            'ORGN', 'ug/l      '),
    (1336, 'Phenanthrene',                                                 'ORGN', 'ug/l      '),
    (1337, 'Phenol',                                                       'ORGN', 'ug/l      '),
    (1338, 'Phenols, total',                                               'ORGN', 'ug/l      '),
    (1339, 'Pyrene',                                                       'ORGN', 'ug/l      '),
    (1340, 'Styrene',                                                      'ORGN', 'ug/l      '),
    (1341, 'Surfactants, anionic',                                         'ORGN', 'ug/l      '),
    (1342, 'Tannin and lignin',                                            'ORGN', 'ug/l      '),
    (1343, 'Tetrachloroethylene',                                          'ORGN', 'ug/l      '),
    (1344, 'Toluene',                                                      'ORGN', 'ug/l      '),
    (1345, 'Trichloroethylene',                                            'ORGN', 'ug/l      '),
    (1346, 'Trihalomethanes, total',                                       'ORGN', 'ug/l      '),
    (1347, 'Vinyl chloride',                                               'ORGN', 'ug/l      '),
    (1348, 'Xylenes, total',                                               'ORGN', 'ug/l      '),
    (1349, 'Hydrocarbons, petroleum',                                      'ORGN', 'mg/l      '),
    (1350, 'Oil and grease',                                               'ORGN', 'mg/l      '),
    (1351, 'PCBs, total',                                                  'ORGN', 'ng/l      '),
    (1352, 'Nonylphenol',                                                  'ORGN', 'ng/l      '),
    (1353, 'Perfluorooctanoic acid',                                       'ORGN', 'ng/l      '),
    (1354, 'Polycyclic aromatic hydrocarbons in sediment, sum of sixteen', 'ORGN', 'ug/kg     '),
    (1401, '2,4-D',                                                        'PEST', 'ug/l      '),
    (1402, '2,4,5-T',                                                      'PEST', 'ug/l      '),
    (1403, '4,4''-DDE',                                                    'PEST', 'ug/l      '),
    (1404, 'Alachlor',                                                     'PEST', 'ug/l      '),
    (1405, 'Aldicarb',                                                     'PEST', 'ug/l      '),
    (1406, 'Aldrin',                                                       'PEST', 'ug/l      '),
    (1407, 'Atrazine',                                                     'PEST', 'ug/l      '),
    (1408, 'Bentazon',                                                     'PEST', 'ug/l      '),
    (1409, 'Carbaryl',                                                     'PEST', 'ug/l      '),
    (1410, 'Carbofuran',                                                   'PEST', 'ug/l      '),
    (1411, 'Chlordane',                                                    'PEST', 'ug/l      '),
    (1412, 'Chlorpyrifos',                                                 'PEST', 'ug/l      '),
    (1413, 'DCPA',                                                         'PEST', 'ug/l      '),
    (1414, 'DDT',                                                          'PEST', 'ug/l      '),
    (1415, 'Diazinon',                                                     'PEST', 'ug/l      '),
    (1416, 'Dicamba',                                                      'PEST', 'ug/l      '),
    (1417, 'Dieldrin',                                                     'PEST', 'ug/l      '),
    (1418, 'Diquat',                                                       'PEST', 'ug/l      '),
    (1419, 'Diuron',                                                       'PEST', 'ug/l      '),
    (1420, 'Endosulfan',                                                   'PEST', 'ug/l      '),
    (1421, 'Endrin',                                                       'PEST', 'ug/l      '),
    (1422, 'Fluridone',                                                    'PEST', 'ug/l      '),
    (1423, 'Glyphosate',                                                   'PEST', 'ug/l      '),
    (1424, 'Heptachlor',                                                   'PEST', 'ug/l      '),
    (1425, 'Imidacloprid',                                                 'PEST', 'ug/l      '),
    (1426, 'Lindane',                                                      'PEST', 'ug/l      '),
    (1427, 'MCPA',                                                         'PEST', 'ug/l      '),
    (1428, 'Malathion',                                                    'PEST', 'ug/l      '),
    (1429, 'Methoxychlor',                                                 'PEST', 'ug/l      '),
    (1430, 'Metolachlor',                                                  'PEST', 'ug/l      '),
    (1431, 'Metribuzin',                                                   'PEST', 'ug/l      '),
    (1432, 'Mirex',                                                        'PEST', 'ug/l      '),
    (1433, 'Parathion',                                                    'PEST', 'ug/l      '),
    (1434, 'Permethrin',                                                   'PEST', 'ug/l      '),
    (1435, 'Picloram',                                                     'PEST', 'ug/l      '),
    (1436, 'Prometon',                                                     'PEST', 'ug/l      '),
    (1437, 'Simazine',                                                     'PEST', 'ug/l      '),
    (1438, 'Toxaphene',                                                    'PEST', 'ug/l      '),
    (1439, 'Trifluralin',                                                  'PEST', 'ug/l      '),
    (1440, 'Aminomethylphosphonic acid',                                   'PEST', 'ng/l      '),
    (1501, 'Chlorophyll a',                                                'BIOL', 'ug/l      '),
    (1502, 'Chlorophyll a, corrected for pheophytin',                      'BIOL', 'ug/l      '),
    (1503, 'Chlorophyll b',                                                'BIOL', 'ug/l      '),
    (1504, 'Chlorophyll c',                                                'BIOL', 'ug/l      '),
    (1505, 'Pheophytin a',                                                 'BIOL', 'ug/l      '),
    (1506, 'Phycocyanin',                                                  'BIOL', 'ug/l      '),
    (1507, 'Microcystins, total',                                          'BIOL', 'ug/l      '),
    (1508, 'Anatoxin-a',                                                   'BIOL', 'ug/l      '),
    (1509, 'Cylindrospermopsin',                                           'BIOL', 'ug/l      '),
    (1510, 'Coliforms, fecal',                                             'BIOL', 'cfu/100 ml'),
    (1511, 'Coliforms, total',                                             'BIOL', 'cfu/100 ml'),
    (1512, 'Enterococci',                                                  'BIOL', 'cfu/100 ml'),
    (1513, 'Escherichia coli',                                             'BIOL', 'cfu/100 ml'),
    (1514, 'Streptococci, fecal',                                          'BIOL', 'cfu/100 ml'),
    (1515, 'Phytoplankton, density',                                       'BIOL', '#/ml      '),
    (1516, 'Cyanobacteria, density',                                       'BIOL', '#/ml      '),
    (1517, 'Zooplankton, density',                                         'BIOL', '#/l       '),
    (1518, 'Mussel larvae, density',                                       'BIOL', '#/l       '),
    (1519, 'Benthos, density',                                             'BIOL', '#/m2      '),
    (1520, 'Periphyton, ash-free dry weight',                              'BIOL', 'g/m2      '),
    (1521, 'Macrophytes, dry weight',                                      'BIOL', 'g/m2      '),
    (1522, 'Periphyton, chlorophyll a',                                    'BIOL', 'mg/m2     '),
    (1523, 'Richness of taxa',                                             'BIOL', 'count     '),
    (1524, 'Richness of mayflies, stoneflies and caddisflies',             'BIOL', 'count     '),
    (1525, 'Fish with lesions',                                            'BIOL', 'count     '),
    (1526, 'Toxicity, Ceriodaphnia, chronic',                              'BIOL', 'TU        '),
    (1527, 'Toxicity, fathead minnow, acute',                              'BIOL', 'TU        '),
    (1528, 'Diversity index, Shannon',                                     'BIOL', 'None      '),
    (1551, 'Bank stability',                                               'HABT', 'None      '),
    (1552, 'Bank vegetation, cover',                                       'HABT', 'None      '),
    (1553, 'Channel alteration',                                           'HABT', 'None      '),
    (1554, 'Channel sinuosity',                                            'HABT', 'None      '),
    (1555, 'Embeddedness',                                                 'HABT', 'None      '),
    (1556, 'Epifaunal substrate',                                          'HABT', 'None      '),
    (1557, 'Frequency of riffles',                                         'HABT', 'None      '),
    (1558, 'Pool variability',                                             'HABT', 'None      '),
    (1559, 'Riparian zone, width class',                                   'HABT', 'None      '),
    (1560, 'Sediment deposition',                                          'HABT', 'None      '),
    (1561, 'Shore, human disturbance',                                     'HABT', 'None      '),
    (1562, 'Shore, woody debris',                                          'HABT', 'None      '),
    (1563, 'Velocity and depth regimes',                                   'HABT', 'None      '),
    (1564, 'Canopy cover',                                                 'HABT', '%         '),
    (1565, 'Substrate, boulders',                                          'HABT', '%         '),
    (1566, 'Substrate, cobble',                                            'HABT', '%         '),
    (1567, 'Substrate, fine',                                              'HABT', '%         '),
    (1568, 'Macrophyte cover',                                             'HABT', '%         '),
    (2001, 'Ablabesmyia',                                                  'TAXA', NULL),
    (2002, 'Acroneuria',                                                   'TAXA', NULL),
    (2003, 'Alona',                                                        'TAXA', NULL),
    (2004, 'Ambloplites rupestris',                                        'TAXA', NULL),
    (2005, 'Ameiurus nebulosus',                                           'TAXA', NULL),
    (2006, 'Amphinemura',                                                  'TAXA', NULL),
    (2007, 'Anabaena',                                                     'TAXA', NULL),
    (2008, 'Anguilla rostrata',                                            'TAXA', NULL),
    (2009, 'Ankistrodesmus',                                               'TAXA', NULL),
    (2010, 'Antocha',                                                      'TAXA', NULL),
    (2011, 'Aphanizomenon',                                                'TAXA', NULL),
    (2012, 'Argia',                                                        'TAXA', NULL),
    (2013, 'Asellus',                                                      'TAXA', NULL),
    (2014, 'Asterionella formosa',                                         'TAXA', NULL),
    (2015, 'Baetis',                                                       'TAXA', NULL),
    (2016, 'Baetis tricaudatus',                                           'TAXA', NULL),
    (2017, 'Boeckella',                                                    'TAXA', NULL),
    (2018, 'Bosmina longirostris',                                         'TAXA', NULL),
    (2019, 'Brachionus',                                                   'TAXA', NULL),
    (2020, 'Caenis',                                                       'TAXA', NULL),
    (2021, 'Calopteryx',                                                   'TAXA', NULL),
    (2022, 'Catostomus commersonii',                                       'TAXA', NULL),
    (2023, 'Ceratium hirundinella',                                        'TAXA', NULL),
    (2024, 'Ceratophyllum demersum',                                       'TAXA', NULL),
    (2025, 'Ceriodaphnia',                                                 'TAXA', NULL),
    (2026, 'Chaoborus',                                                    'TAXA', NULL),
    (2027, 'Chara',                                                        'TAXA', NULL),
    (2028, 'Cheumatopsyche',                                               'TAXA', NULL),
    (2029, 'Chimarra',                                                     'TAXA', NULL),
    (2030, 'Chironomidae',                                                 'TAXA', NULL),
    (2031, 'Chironomus',                                                   'TAXA', NULL),
    (2032, 'Chlamydomonas',                                                'TAXA', NULL),
    (2033, 'Chydorus sphaericus',                                          'TAXA', NULL),
    (2034, 'Cladophora',                                                   'TAXA', NULL),
    (2035, 'Closterium',                                                   'TAXA', NULL),
    (2036, 'Corbicula fluminea',                                           'TAXA', NULL),
    (2037, 'Corydalus',                                                    'TAXA', NULL),
    (2038, 'Cottus bairdii',                                               'TAXA', NULL),
    (2039, 'Cryptomonas',                                                  'TAXA', NULL),
    (2040, 'Cyclops',                                                      'TAXA', NULL),
    (2041, 'Cyclotella',                                                   'TAXA', NULL),
    (2042, 'Daphnia galeata',                                              'TAXA', NULL),
    (2043, 'Daphnia pulex',                                                'TAXA', NULL),
    (2044, 'Diaptomus',                                                    'TAXA', NULL),
    (2045, 'Dinobryon',                                                    'TAXA', NULL),
    (2046, 'Dreissena polymorpha',                                         'TAXA', NULL),
    (2047, 'Dugesia',                                                      'TAXA', NULL),
    (2048, 'Elodea canadensis',                                            'TAXA', NULL),
    (2049, 'Epeorus',                                                      'TAXA', NULL),
    (2050, 'Ephemera',                                                     'TAXA', NULL),
    (2051, 'Ephemerella',                                                  'TAXA', NULL),
    (2052, 'Esox lucius',                                                  'TAXA', NULL),
    (2053, 'Esox niger',                                                   'TAXA', NULL),
    (2054, 'Etheostoma olmstedi',                                          'TAXA', NULL),
    (2055, 'Fragilaria crotonensis',                                       'TAXA', NULL),
    (2056, 'Gammarus',                                                     'TAXA', NULL),
    (2057, 'Glossosoma',                                                   'TAXA', NULL),
    (2058, 'Gomphus',                                                      'TAXA', NULL),
    (2059, 'Heptagenia',                                                   'TAXA', NULL),
    (2060, 'Hexagenia limbata',                                            'TAXA', NULL),
    (2061, 'Hyalella azteca',                                              'TAXA', NULL),
    (2062, 'Hydropsyche',                                                  'TAXA', NULL),
    (2063, 'Isoperla',                                                     'TAXA', NULL),
    (2064, 'Keratella cochlearis',                                         'TAXA', NULL),
    (2065, 'Lemna minor',                                                  'TAXA', NULL),
    (2066, 'Lepomis gibbosus',                                             'TAXA', NULL),
    (2067, 'Lepomis macrochirus',                                          'TAXA', NULL),
    (2068, 'Leptodora kindtii',                                            'TAXA', NULL),
    (2069, 'Leuctra',                                                      'TAXA', NULL),
    (2070, 'Limnodrilus hoffmeisteri',                                     'TAXA', NULL),
    (2071, 'Lumbriculus',                                                  'TAXA', NULL),
    (2072, 'Melosira',                                                     'TAXA', NULL),
    (2073, 'Microcystis aeruginosa',                                       'TAXA', NULL),
    (2074, 'Micropterus dolomieu',                                         'TAXA', NULL),
    (2075, 'Micropterus salmoides',                                        'TAXA', NULL),
    (2076, 'Myriophyllum spicatum',                                        'TAXA', NULL),
    (2077, 'Najas flexilis',                                               'TAXA', NULL),
    (2078, 'Navicula',                                                     'TAXA', NULL),
    (2079, 'Nigronia',                                                     'TAXA', NULL),
    (2080, 'Nuphar',                                                       'TAXA', NULL),
    (2081, 'Nymphaea odorata',                                             'TAXA', NULL),
    (2082, 'Oligochaeta',                                                  'TAXA', NULL),
    (2083, 'Oncorhynchus mykiss',                                          'TAXA', NULL),
    (2084, 'Optioservus',                                                  'TAXA', NULL),
    (2085, 'Orconectes',                                                   'TAXA', NULL),
    (2086, 'Oscillatoria',                                                 'TAXA', NULL),
    (2087, 'Paraleptophlebia',                                             'TAXA', NULL),
    (2088, 'Pediastrum',                                                   'TAXA', NULL),
    (2089, 'Peltoperla',                                                   'TAXA', NULL),
    (2090, 'Perca flavescens',                                             'TAXA', NULL),
    (2091, 'Perlesta',                                                     'TAXA', NULL),
    (2092, 'Physella',                                                     'TAXA', NULL),
    (2093, 'Pimephales promelas',                                          'TAXA', NULL),
    (2094, 'Pisidium',                                                     'TAXA', NULL),
    (2095, 'Planorbella',                                                  'TAXA', NULL),
    (2096, 'Polycentropus',                                                'TAXA', NULL),
    (2097, 'Polyarthra',                                                   'TAXA', NULL),
    (2098, 'Potamogeton crispus',                                          'TAXA', NULL),
    (2099, 'Psephenus',                                                    'TAXA', NULL),
    (2100, 'Pteronarcys',                                                  'TAXA', NULL),
    (2101, 'Rhithrogena',                                                  'TAXA', NULL),
    (2102, 'Rhyacophila',                                                  'TAXA', NULL),
    (2103, 'Salmo trutta',                                                 'TAXA', NULL),
    (2104, 'Salvelinus fontinalis',                                        'TAXA', NULL),
    (2105, 'Scenedesmus',                                                  'TAXA', NULL),
    (2106, 'Semotilus atromaculatus',                                      'TAXA', NULL),
    (2107, 'Sialis',                                                       'TAXA', NULL),
    (2108, 'Simulium',                                                     'TAXA', NULL),
    (2109, 'Siphlonurus',                                                  'TAXA', NULL),
    (2110, 'Sphaerium',                                                    'TAXA', NULL),
    (2111, 'Spirogyra',                                                    'TAXA', NULL),
    (2112, 'Staurastrum',                                                  'TAXA', NULL),
    (2113, 'Stenonema',                                                    'TAXA', NULL),
    (2114, 'Synedra',                                                      'TAXA', NULL),
    (2115, 'Tabellaria flocculosa',                                        'TAXA', NULL),
    (2116, 'Taeniopteryx',                                                 'TAXA', NULL),
    (2117, 'Tanytarsus',                                                   'TAXA', NULL),
    (2118, 'Tipula',                                                       'TAXA', NULL),
    (2119, 'Trapa natans',                                                 'TAXA', NULL),
    (2120, 'Tubifex tubifex',                                              'TAXA', NULL),
    (2121, 'Typha latifolia',                                              'TAXA', NULL),
    (2122, 'Vallisneria americana',                                        'TAXA', NULL),
    (2123, 'Volvox',                                                       'TAXA', NULL),
    (2124, 'Zostera marina',                                               'TAXA', NULL)
) AS listed;

-- Analytical procedures, of three sources. LIMNOMETHODS and KEL-SEDIMENT-PAH18 fill their columns to the
-- last place.
CREATE TABLE tsranlpr (
    tsranlpr_is_number NUMERIC(12) NOT NULL,
    source_acr         CHAR(12) COLLATE RTRIM NOT NULL,
    source_name        VARCHAR(60) NOT NULL,
    procedure_id       CHAR(18) COLLATE RTRIM NOT NULL,
    name               VARCHAR(60) NOT NULL,
    PRIMARY KEY (tsranlpr_is_number),
    UNIQUE (source_acr, procedure_id)
);
INSERT INTO tsranlpr (tsranlpr_is_number, source_acr, source_name, procedure_id, name) VALUES
    (3001, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-100            ', 'pH of water by electrode'),
    (3002, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-110            ', 'Conductance at 25 degrees'),
    (3003, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-210            ', 'Nitrate plus nitrite by flow analyzer'),
    (3004, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-215            ', 'Ammonia by flow analyzer'),
    (3005, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-220            ', 'Kjeldahl nitrogen by block digester'),
    (3006, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-230            ', 'Orthophosphate by ascorbic acid'),
    (3007, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-231            ', 'Total phosphorus by ascorbic acid, digested'),
    (3008, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-310            ', 'Anions by ion chromatography'),
    (3009, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-410            ', 'Trace metals by graphite furnace'),
    (3010, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-420            ', 'Major cations by flame'),
    (3011, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-505            ', 'Volatile organic compounds by purge and trap'),
    (3012, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-510            ', 'Pesticides by gas chromatography'),
    (3013, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-515            ', 'Herbicides by liquid chromatography'),
    (3014, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-610            ', 'Escherichia coli by enzyme substrate'),
    (3015, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-620            ', 'Enterococci by membrane filter'),
    (3016, 'BRIDGELAB   ', 'Bridge Street Laboratory handbook',  'BS-700            ', 'Toxicity to Ceriodaphnia, 7 days'),
    (3101, 'KELDAR      ', 'Procedures of the central database', 'K-ALK-01          ', 'Alkalinity by titration to pH 4.5'),
    (3102, 'KELDAR      ', 'Procedures of the central database', 'K-BOD-05          ', 'Oxygen demand, 5 days at 20 degrees'),
    (3103, 'KELDAR      ', 'Procedures of the central database', 'K-CHL-01          ', 'Chlorophyll a by fluorometer'),
    (3104, 'KELDAR      ', 'Procedures of the central database', 'K-CL-01           ', 'Chloride by ion chromatography'),
    (3105, 'KELDAR      ', 'Procedures of the central database', 'K-COL-02          ', 'Coliforms by membrane filter'),
    (3106, 'KELDAR      ', 'Procedures of the central database', 'K-CON-01          ', 'Conductance by cell and bridge'),
    (3107, 'KELDAR      ', 'Procedures of the central database', 'K-DO-01           ', 'Dissolved oxygen by membrane electrode'),
    (3108, 'KELDAR      ', 'Procedures of the central database', 'K-DO-02           ', 'Dissolved oxygen by titration with azide'),
    (3109, 'KELDAR      ', 'Procedures of the central database', 'K-HG-02           ', 'Mercury by cold vapor'),
    (3110, 'KELDAR      ', 'Procedures of the central database', 'K-ICP-01          ', 'Metals by plasma emission'),
    (3111, 'KELDAR      ', 'Procedures of the central database', 'K-ICP-02          ', 'Metals by plasma mass spectrometry'),
    (3112, 'KELDAR      ', 'Procedures of the central database', 'K-NH3-01          ', 'Ammonia by phenate'),
    (3113, 'KELDAR      ', 'Procedures of the central database', 'K-NO3-01          ', 'Nitrate by cadmium reduction'),
    (3114, 'KELDAR      ', 'Procedures of the central database', 'K-PH-01           ', 'pH by electrode'),
    (3115, 'KELDAR      ', 'Procedures of the central database', 'K-SEC-01          ', 'Secchi disk depth'),
    (3116, 'KELDAR      ', 'Procedures of the central database', 'K-TMP-01          ', 'Temperature by thermistor'),
    (3117, 'KELDAR      ', 'Procedures of the central database', 'K-TP-01           ', 'Total phosphorus by persulfate digestion'),
    (3118, 'KELDAR      ', 'Procedures of the central database', 'K-TSS-01          ', 'Suspended solids dried at 105 degrees'),
    (3119, 'KELDAR      ', 'Procedures of the central database', 'K-TURB-01         ', 'Turbidity by nephelometer'),
    (3120, 'KELDAR      ', 'Procedures of the central database', 'KEL-SEDIMENT-PAH18', 'Aromatic hydrocarbons in sediment by GC'),
    (3201, 'LIMNOMETHODS', 'Lake and river methods, collected',  'BENTHOS-100       ', 'Stream invertebrates, count of 100'),
    (3202, 'LIMNOMETHODS', 'Lake and river methods, collected',  'BENTHOS-300       ', 'Stream invertebrates, count of 300'),
    (3203, 'LIMNOMETHODS', 'Lake and river methods, collected',  'CHLA-ETOH         ', 'Chlorophyll a by ethanol extraction'),
    (3204, 'LIMNOMETHODS', 'Lake and river methods, collected',  'CHLA-HPLC         ', 'Chlorophylls by liquid chromatography'),
    (3205, 'LIMNOMETHODS', 'Lake and river methods, collected',  'FISH-CPUE         ', 'Fish, catch per unit of effort'),
    (3206, 'LIMNOMETHODS', 'Lake and river methods, collected',  'MACROPH-TRANS     ', 'Macrophytes along a transect'),
    (3207, 'LIMNOMETHODS', 'Lake and river methods, collected',  'PERI-SCRAPE       ', 'Periphyton, scraped area'),
    (3208, 'LIMNOMETHODS', 'Lake and river methods, collected',  'PHYTO-SETTLE      ', 'Phytoplankton by settling chamber'),
    (3209, 'LIMNOMETHODS', 'Lake and river methods, collected',  'PROFILE-SONDE     ', 'Profile of oxygen and temperature by sonde'),
    (3210, 'LIMNOMETHODS', 'Lake and river methods, collected',  'SECCHI-VIEW       ', 'Secchi disk with viewing tube'),
    (3211, 'LIMNOMETHODS', 'Lake and river methods, collected',  'SHORE-WALK        ', 'Shore habitat along a walk'),
    (3212, 'LIMNOMETHODS', 'Lake and river methods, collected',  'ZOOPL-TOW         ', 'Zooplankton of a vertical tow');

-- Characteristic groups: sets of characteristics that are entered together. Their rows are defined by
-- the system (S, in tsrccga and tsrchdef) or by the user (U, in tsrhcsc). The groups called S and U
-- are those that the program finds for a configuration file with the habitat definition S or U, since
-- it takes that value for the id of the group as well.
CREATE TABLE tsrchgrp (
    tsrchgrp_is_number NUMERIC(12) NOT NULL,
    tsrchgrp_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    id_code            CHAR(8) COLLATE RTRIM NOT NULL,
    name               VARCHAR(60) NOT NULL,
    fld_act_type_nm    VARCHAR(15) NOT NULL,
    medium_type_name   VARCHAR(15),
    habitat_assess_ind CHAR(1) COLLATE RTRIM NOT NULL,
    char_defined_ind   CHAR(1) COLLATE RTRIM NOT NULL,
    PRIMARY KEY (tsrchgrp_is_number, tsrchgrp_org_id),
    FOREIGN KEY (tsrchgrp_org_id) REFERENCES tsmorgan (org_id)
);
CREATE INDEX tsrchgrp_organization ON tsrchgrp (tsrchgrp_org_id, fld_act_type_nm);
CREATE INDEX tsrchgrp_id ON tsrchgrp (id_code);
CREATE INDEX tsrchgrp_activity ON tsrchgrp (fld_act_type_nm);
INSERT INTO tsrchgrp
    (tsrchgrp_is_number, tsrchgrp_org_id, id_code, name, fld_act_type_nm, medium_type_name,
     habitat_assess_ind, char_defined_ind) VALUES
    (4001, 'LONGLAKE', 'LAKECHEM', 'Lake nutrients and chlorophyll',                 'Sample',        'Water', 'N', 'S'),
    (4002, 'LONGLAKE', 'S       ', 'Shore habitat, points of the system',            'Field Msr/Obs', NULL,    'Y', 'S'),
    (4003, 'LONGLAKE', 'U       ', 'Shore habitat, points of our own',               'Field Msr/Obs', NULL,    'Y', 'U'),
    (4004, 'LONGLAKE', 'BUOY    ', 'Buoy in the north basin',                        'Data Logger',   'Water', 'N', 'S'),
    (4005, 'LONGLAKE', 'NEWBUOY ', 'Buoy in the south basin, rows not numbered yet', 'Data Logger',   'Water', 'N', 'S'),
    (4021, 'ALDER   ', 'RIVCHEM ', 'River chemistry below the mill',                 'Sample',        'Water', 'N', 'S'),
    (4022, 'ALDER   ', 'BANKHAB ', 'Bank habitat of a reach',                        'Field Msr/Obs', NULL,    'Y', 'U'),
    (4023, 'ALDER   ', 'SONDE   ', 'Sonde at the gauge',                             'Data Logger',   'Water', 'N', 'S'),
    (4041, 'FENMOOR ', 'PIER    ', 'Pier logger',                                    'Data Logger',   'Water', 'N', 'S'),
    (4042, 'FENMOOR ', 'TIDEGATE', 'Tide gate logger',                               'Data Logger',   'Water', 'N', 'S');

-- Characteristics of a group, in the order in which they are entered.
CREATE TABLE tsrccga (
    tsrccga_is_number  NUMERIC(12) NOT NULL,
    tsrccga_org_id     CHAR(8) COLLATE RTRIM NOT NULL,
    sequence_number    NUMERIC(4) NOT NULL,
    tsrchar_is_number  NUMERIC(12) NOT NULL,
    tsrchgrp_is_number NUMERIC(12) NOT NULL,
    tsrchgrp_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    PRIMARY KEY (tsrccga_is_number, tsrccga_org_id),
    FOREIGN KEY (tsrccga_org_id) REFERENCES tsmorgan (org_id),
    FOREIGN KEY (tsrchar_is_number) REFERENCES tsrchar (tsrchar_is_number),
    FOREIGN KEY (tsrchgrp_is_number, tsrchgrp_org_id)
        REFERENCES tsrchgrp (tsrchgrp_is_number, tsrchgrp_org_id)
);
CREATE INDEX tsrccga_group ON tsrccga (tsrchgrp_is_number, tsrchgrp_org_id);
CREATE INDEX tsrccga_group_organization ON tsrccga (tsrchgrp_org_id);
CREATE INDEX tsrccga_characteristic ON tsrccga (tsrchar_is_number);
CREATE INDEX tsrccga_organization ON tsrccga (tsrccga_org_id);
INSERT INTO tsrccga
    (tsrccga_is_number, tsrccga_org_id, sequence_number, tsrchar_is_number, tsrchgrp_is_number,
     tsrchgrp_org_id) VALUES
    (5001, 'LONGLAKE', 1, 1116, 4001, 'LONGLAKE'),  -- Phosphorus, total as P
    (5002, 'LONGLAKE', 2, 1113, 4001, 'LONGLAKE'),  -- Orthophosphate as P
    (5003, 'LONGLAKE', 3, 1110, 4001, 'LONGLAKE'),  -- Nitrogen, Kjeldahl
    (5004, 'LONGLAKE', 4, 1108, 4001, 'LONGLAKE'),  -- Nitrate plus nitrite as N
    (5005, 'LONGLAKE', 5, 1501, 4001, 'LONGLAKE'),  -- Chlorophyll a
    (5006, 'LONGLAKE', 6, 1117, 4001, 'LONGLAKE'),  -- Silica as SiO2
    (5007, 'LONGLAKE', 1, 1561, 4002, 'LONGLAKE'),  -- Shore, human disturbance
    (5008, 'LONGLAKE', 2, 1562, 4002, 'LONGLAKE'),  -- Shore, woody debris
    (5009, 'LONGLAKE', 3, 1568, 4002, 'LONGLAKE'),  -- Macrophyte cover
    (5010, 'LONGLAKE', 4, 1567, 4002, 'LONGLAKE'),  -- Substrate, fine
    (5011, 'LONGLAKE', 5, 1564, 4002, 'LONGLAKE'),  -- Canopy cover
    (5012, 'LONGLAKE', 1, 1003, 4004, 'LONGLAKE'),  -- Temperature, water
    (5013, 'LONGLAKE', 2, 1031, 4004, 'LONGLAKE'),  -- Oxygen, dissolved
    (5014, 'LONGLAKE', 3, 1004, 4004, 'LONGLAKE'),  -- pH
    (5015, 'LONGLAKE', 4, 1009, 4004, 'LONGLAKE'),  -- Specific conductance
    (5016, 'LONGLAKE', 5, 1506, 4004, 'LONGLAKE'),  -- Phycocyanin
    (5017, 'LONGLAKE', 1, 1003, 4005, 'LONGLAKE'),  -- Temperature, water
    (5018, 'LONGLAKE', 2, 1031, 4005, 'LONGLAKE'),  -- Oxygen, dissolved
    (5019, 'ALDER   ', 1, 1032, 4021, 'ALDER   '),  -- Oxygen demand, biochemical, 5 days
    (5020, 'ALDER   ', 2, 1027, 4021, 'ALDER   '),  -- Solids, suspended
    (5021, 'ALDER   ', 3, 1025, 4021, 'ALDER   '),  -- Color, true
    (5022, 'ALDER   ', 4, 1201, 4021, 'ALDER   '),  -- Aluminum
    (5023, 'ALDER   ', 5, 1201, 4021, 'ALDER   '),  -- Aluminum
    (5024, 'ALDER   ', 6, 1234, 4021, 'ALDER   '),  -- Zinc
    (5025, 'ALDER   ', 1, 1003, 4023, 'ALDER   '),  -- Temperature, water
    (5026, 'ALDER   ', 2, 1021, 4023, 'ALDER   '),  -- Turbidity
    (5027, 'ALDER   ', 3, 1016, 4023, 'ALDER   '),  -- Height, gauge
    (5028, 'ALDER   ', 4, 1009, 4023, 'ALDER   '),  -- Specific conductance
    (5029, 'FENMOOR ', 1, 1003, 4041, 'FENMOOR '),  -- Temperature, water
    (5030, 'FENMOOR ', 2, 1011, 4041, 'FENMOOR '),  -- Salinity
    (5031, 'FENMOOR ', 3, 1021, 4041, 'FENMOOR '),  -- Turbidity
    (5032, 'FENMOOR ', 1, 1011, 4042, 'FENMOOR '),  -- Salinity
    (5033, 'FENMOOR ', 2, 1017, 4042, 'FENMOOR ');  -- Elevation, water surface

-- Row definitions: the row id, unit and sample fraction under which a characteristic of a group is
-- reported. The rows of the new buoy have no ids yet.
CREATE TABLE tsrchdef (
    tsrchdef_is_number NUMERIC(12) NOT NULL,
    tsrchdef_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    row_id             CHAR(15) COLLATE RTRIM,
    uom_name           CHAR(10) COLLATE RTRIM,
    smpl_frac_type_nm  VARCHAR(15),
    tsrccga_is_number  NUMERIC(12) NOT NULL,
    tsrccga_org_id     CHAR(8) COLLATE RTRIM NOT NULL,
    PRIMARY KEY (tsrchdef_is_number, tsrchdef_org_id),
    FOREIGN KEY (tsrchdef_org_id) REFERENCES tsmorgan (org_id),
    FOREIGN KEY (uom_name) REFERENCES tsruom (short_form_name),
    FOREIGN KEY (tsrccga_is_number, tsrccga_org_id)
        REFERENCES tsrccga (tsrccga_is_number, tsrccga_org_id)
);
CREATE INDEX tsrchdef_member ON tsrchdef (tsrccga_is_number, tsrccga_org_id);
CREATE INDEX tsrchdef_member_organization ON tsrchdef (tsrccga_org_id);
CREATE INDEX tsrchdef_organization ON tsrchdef (tsrchdef_org_id);
CREATE INDEX tsrchdef_row ON tsrchdef (row_id);
INSERT INTO tsrchdef
    (tsrchdef_is_number, tsrchdef_org_id, row_id, uom_name, smpl_frac_type_nm, tsrccga_is_number,
     tsrccga_org_id) VALUES
    (6001, 'LONGLAKE', 'LC-01          ', 'mg/l      ', 'Total',     5001, 'LONGLAKE'),
    (6002, 'LONGLAKE', 'LC-02          ', 'mg/l      ', 'Dissolved', 5002, 'LONGLAKE'),
    (6003, 'LONGLAKE', 'LC-03          ', 'mg/l      ', 'Total',     5003, 'LONGLAKE'),
    (6004, 'LONGLAKE', 'LC-04          ', 'mg/l      ', 'Dissolved', 5004, 'LONGLAKE'),
    (6005, 'LONGLAKE', 'LC-05          ', 'ug/l      ', 'Suspended', 5005, 'LONGLAKE'),
    (6006, 'LONGLAKE', 'LC-06          ', 'mg/l      ', 'Dissolved', 5006, 'LONGLAKE'),
    (6007, 'LONGLAKE', 'SH-01          ', 'None      ', NULL,        5007, 'LONGLAKE'),
    (6008, 'LONGLAKE', 'SH-02          ', 'None      ', NULL,        5008, 'LONGLAKE'),
    (6009, 'LONGLAKE', 'SH-03          ', '%         ', NULL,        5009, 'LONGLAKE'),
    (6010, 'LONGLAKE', 'SH-04          ', '%         ', NULL,        5010, 'LONGLAKE'),
    (6011, 'LONGLAKE', 'SH-05          ', '%         ', NULL,        5011, 'LONGLAKE'),
    (6012, 'LONGLAKE', 'BU-01          ', 'deg C     ', NULL,        5012, 'LONGLAKE'),
    (6013, 'LONGLAKE', 'BU-02          ', 'mg/l      ', 'Dissolved', 5013, 'LONGLAKE'),
    (6014, 'LONGLAKE', 'BU-03          ', 'None      ', NULL,        5014, 'LONGLAKE'),
    (6015, 'LONGLAKE', 'BU-04          ', 'uS/cm     ', NULL,        5015, 'LONGLAKE'),
    (6016, 'LONGLAKE', 'BU-05          ', 'ug/l      ', 'Suspended', 5016, 'LONGLAKE'),
    (6017, 'LONGLAKE', NULL,              'deg C     ', NULL,        5017, 'LONGLAKE'),
    (6018, 'LONGLAKE', NULL,              'mg/l      ', 'Dissolved', 5018, 'LONGLAKE'),
    (6019, 'ALDER   ', 'RC-01          ', 'mg/l      ', 'Total',     5019, 'ALDER   '),
    (6020, 'ALDER   ', 'RC-02          ', 'mg/l      ', 'Suspended', 5020, 'ALDER   '),
    (6021, 'ALDER   ', 'RC-03          ', 'PCU       ', 'Dissolved', 5021, 'ALDER   '),
    (6022, 'ALDER   ', 'RC-04          ', 'ug/l      ', 'Total',     5022, 'ALDER   '),
    (6023, 'ALDER   ', 'RC-05          ', 'ug/l      ', 'Dissolved', 5023, 'ALDER   '),
    (6024, 'ALDER   ', 'RC-06          ', 'ug/l      ', 'Dissolved', 5024, 'ALDER   '),
    (6025, 'ALDER   ', 'SO-01          ', 'deg C     ', NULL,        5025, 'ALDER   '),
    (6026, 'ALDER   ', 'SO-02          ', 'NTU       ', NULL,        5026, 'ALDER   '),
    (6027, 'ALDER   ', 'SO-03          ', 'm         ', NULL,        5027, 'ALDER   '),
    (6028, 'ALDER   ', 'SO-04          ', 'uS/cm     ', NULL,        5028, 'ALDER   '),
    (6029, 'FENMOOR ', 'PI-01          ', 'deg C     ', NULL,        5029, 'FENMOOR '),
    (6030, 'FENMOOR ', 'PI-02          ', 'psu       ', NULL,        5030, 'FENMOOR '),
    (6031, 'FENMOOR ', 'PI-03          ', 'NTU       ', NULL,        5031, 'FENMOOR '),
    (6032, 'FENMOOR ', 'TG-01          ', 'psu       ', NULL,        5032, 'FENMOOR '),
    (6033, 'FENMOOR ', 'TG-02          ', 'm         ', NULL,        5033, 'FENMOOR ');

-- Habitat characteristics of an organization's own, with their row ids.
CREATE TABLE tsrhcsc (
    tsrhcsc_is_number  NUMERIC(12) NOT NULL,
    tsrhcsc_org_id     CHAR(8) COLLATE RTRIM NOT NULL,
    tsrchgrp_is_number NUMERIC(12) NOT NULL,
    characterstc_name  VARCHAR(60) NOT NULL,
    description_text   VARCHAR(60) NOT NULL,
    row_id             CHAR(15) COLLATE RTRIM NOT NULL,
    PRIMARY KEY (tsrhcsc_is_number, tsrhcsc_org_id),
    FOREIGN KEY (tsrhcsc_org_id) REFERENCES tsmorgan (org_id),
    FOREIGN KEY (tsrchgrp_is_number, tsrhcsc_org_id)
        REFERENCES tsrchgrp (tsrchgrp_is_number, tsrchgrp_org_id)
);
CREATE INDEX tsrhcsc_group ON tsrhcsc (tsrchgrp_is_number, tsrhcsc_org_id);
CREATE INDEX tsrhcsc_organization ON tsrhcsc (tsrhcsc_org_id);
INSERT INTO tsrhcsc
    (tsrhcsc_is_number, tsrhcsc_org_id, tsrchgrp_is_number, characterstc_name, description_text,
     row_id) VALUES
    (7001, 'LONGLAKE', 4003, 'Docks within sight',     'Number of docks seen from the point',     'OH-01          '),
    (7002, 'LONGLAKE', 4003, 'Lawn down to the shore', 'Share of the shore, in tenths',           'OH-02          '),
    (7003, 'LONGLAKE', 4003, 'Overhanging trees',      'Number on 20 m of shore',                 'OH-03          '),
    (7004, 'LONGLAKE', 4003, 'Driftwood',              'Pieces longer than 1 m on 20 m of shore', 'OH-04          '),
    (7005, 'ALDER   ', 4022, 'Left bank, undercut',    'Depth of the undercut, in cm',            'BK-01          '),
    (7006, 'ALDER   ', 4022, 'Right bank, undercut',   'Depth of the undercut, in cm',            'BK-02          '),
    (7007, 'ALDER   ', 4022, 'Cattle tracks',          'None, few or many',                       'BK-03          '),
    (7008, 'ALDER   ', 4022, 'Livestock fence',        'Yes or no',                               'BK-04          ');

-- Automatic data loggers, each installed at a station. One is spare and stands nowhere.
CREATE TABLE tsradl (
    tsradl_is_number   NUMERIC(12) NOT NULL,
    tsradl_org_id      CHAR(8) COLLATE RTRIM NOT NULL,
    id_code            CHAR(15) COLLATE RTRIM NOT NULL,
    serial_number      VARCHAR(20),
    model              VARCHAR(20) NOT NULL,
    make               VARCHAR(30) NOT NULL,
    tsmstatn_org_id    CHAR(8) COLLATE RTRIM,
    tsmstatn_is_number NUMERIC(12),
    PRIMARY KEY (tsradl_is_number, tsradl_org_id),
    FOREIGN KEY (tsradl_org_id) REFERENCES tsmorgan (org_id),
    FOREIGN KEY (tsmstatn_is_number, tsmstatn_org_id)
        REFERENCES tsmstatn (tsmstatn_is_number, tsmstatn_org_id)
);
CREATE INDEX tsradl_organization ON tsradl (tsradl_org_id);
INSERT INTO tsradl
    (tsradl_is_number, tsradl_org_id, id_code, serial_number, model, make, tsmstatn_org_id,
     tsmstatn_is_number) VALUES
    (8001, 'LONGLAKE', 'BUOY-NORTH     ', 'TL-04417', 'Tern 3',    'Lakeside Instruments', 'LONGLAKE',  101),
    (8002, 'LONGLAKE', 'BUOY-SOUTH     ', 'TL-05102', 'Tern 4',    'Lakeside Instruments', 'LONGLAKE',  102),
    (8003, 'LONGLAKE', 'SPARE          ', NULL,       'Tern 3',    'Lakeside Instruments', NULL,       NULL),
    (8021, 'ALDER   ', 'WEIR-STREET    ', '88-1203',  'Riverhawk', 'Stonefly Hydrometry',  'ALDER   ',  123),
    (8041, 'FENMOOR ', 'PIER1          ', 'S2004-17', 'Plumb 200', 'Harbor Sensors',       'FENMOOR ',  141),
    (8042, 'FENMOOR ', 'TIDEGATE       ', 'S2004-18', 'Plumb 210', 'Harbor Sensors',       'FENMOOR ',  142);

-- Operating periods of data loggers: a deployment and the log file it filled. The stop date is NULL while
-- a logger is out.
CREATE TABLE tsropprd (
    tsropprd_is_number NUMERIC(12) NOT NULL,
    tsropprd_org_id    CHAR(8) COLLATE RTRIM NOT NULL,
    log_file_name      VARCHAR(30) NOT NULL,
    tsradl_is_number   NUMERIC(12) NOT NULL,
    tsradl_org_id      CHAR(8) COLLATE RTRIM NOT NULL,
    start_date         TIMESTAMP NOT NULL,
    stop_date          TIMESTAMP,
    PRIMARY KEY (tsropprd_is_number, tsropprd_org_id),
    FOREIGN KEY (tsropprd_org_id) REFERENCES tsmorgan (org_id),
    FOREIGN KEY (tsradl_is_number, tsradl_org_id)
        REFERENCES tsradl (tsradl_is_number, tsradl_org_id)
);
CREATE INDEX tsropprd_organization ON tsropprd (tsropprd_org_id);
CREATE INDEX tsropprd_logger ON tsropprd (tsradl_is_number, tsradl_org_id);
INSERT INTO tsropprd
    (tsropprd_is_number, tsropprd_org_id, log_file_name, tsradl_is_number, tsradl_org_id,
     start_date, stop_date) VALUES
    (9001, 'LONGLAKE', 'BN040501.TXT', 8001, 'LONGLAKE', '2004-05-01 09:30:00', '2004-06-14 11:00:00'),
    (9002, 'LONGLAKE', 'BN040614.TXT', 8001, 'LONGLAKE', '2004-06-14 11:30:00', '2004-08-02 10:15:00'),
    (9003, 'LONGLAKE', 'BN040802.TXT', 8001, 'LONGLAKE', '2004-08-02 10:45:00', NULL),
    (9004, 'LONGLAKE', 'BS040719.TXT', 8002, 'LONGLAKE', '2004-07-19 14:00:00', NULL),
    (9021, 'ALDER   ', 'WS040410.TXT', 8021, 'ALDER   ', '2004-04-10 08:00:00', '2004-07-01 08:00:00'),
    (9022, 'ALDER   ', 'WS040701.TXT', 8021, 'ALDER   ', '2004-07-01 08:30:00', NULL),
    (9041, 'FENMOOR ', 'P1-2004A.TXT', 8041, 'FENMOOR ', '2004-03-15 00:00:00', '2004-09-15 00:00:00'),
    (9042, 'FENMOOR ', 'TG-2004A.TXT', 8042, 'FENMOOR ', '2004-03-16 12:00:00', NULL);

COMMIT;
