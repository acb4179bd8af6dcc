-- What only an update file has; all of it goes when the update is done.

-- The first row that says yes names the version: which rows of the database in use move over.
CREATE TABLE ToDo (
    Funktion    TEXT COLLATE NOCASE,
    ja          INTEGER DEFAULT 0
);

-- A calibration that comes with the update, as its only row. It becomes the last one, unless the
-- last one in use has its date. Whoever delivers an update puts it here.
CREATE TABLE Normalkalibrierdaten_neu (
    NK_ID               INTEGER PRIMARY KEY AUTOINCREMENT,
    SerienNr            TEXT COLLATE NOCASE,
    Normal              TEXT COLLATE NOCASE,
    kalibriertVon       TEXT,
    kalibriertBis       TEXT,
    KalScheinNr         TEXT COLLATE NOCASE,
    Offset              REAL,
    Gain_R              REAL,
    Gain_L              REAL,
    VK1_R               REAL,
    VK1_L               REAL,
    HebelarmNr          TEXT COLLATE NOCASE,
    GrenzwStreubreite   REAL,
    AnzahlStreu         INTEGER
);
