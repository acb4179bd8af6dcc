-- All tables of torvena470.mdb.
--
-- The program moves rows with INSERT INTO ... SELECT * and reads several tables by position, so
-- the order of columns is part of the contract: new columns go to the end, and in a pair to both.
--
-- Text compares without regard to case (A to Z only; Ä and ä differ). Dates are ISO text in local
-- time. Yes/No is -1/0. Identifiers with umlauts must be written in the case used here.
--
-- Nothing cascades but what hangs on an archived head: the program deletes table by table.
--
-- Each column stands on a line of its own: that is how a database of an older build is given what
-- it lacks. A new column with a default that is no constant cannot be added to rows.
--
-- ToDo and Normalkalibrierdaten_neu are missing on purpose. Only an update file has them, and the
-- absence of ToDo is how a plain database is told from an update.


-- Customers and units --------------------------------------------------------------------------

CREATE TABLE Kunden (
    KundenID    INTEGER PRIMARY KEY AUTOINCREMENT,
    Name        TEXT COLLATE NOCASE,
    Straße      TEXT COLLATE NOCASE,
    PLZ         TEXT COLLATE NOCASE,
    Ort         TEXT COLLATE NOCASE
);
CREATE INDEX KundenName ON Kunden (Name);
CREATE INDEX KundenOrt ON Kunden (Ort);
CREATE INDEX KundenPLZ ON Kunden (PLZ);

CREATE TABLE Ergometer (
    GerätID     INTEGER PRIMARY KEY AUTOINCREMENT,
    KundenID    INTEGER,
    Gerätetyp   TEXT COLLATE NOCASE,
    Hersteller  TEXT COLLATE NOCASE,
    SerienNr    TEXT COLLATE NOCASE,
    IdentNr     TEXT COLLATE NOCASE     -- unique over all customers; kept so by the program
);
CREATE INDEX ErgometerAngaben ON Ergometer (KundenID, IdentNr, Hersteller, Gerätetyp);
CREATE INDEX ErgometerGerätetyp ON Ergometer (Gerätetyp);
CREATE INDEX ErgometerHersteller ON Ergometer (Hersteller);
CREATE INDEX ErgometerIdentNr ON Ergometer (IdentNr);


-- Specifications and recipes -------------------------------------------------------------------

-- NUMERIC keeps 5 as 5 and 7.5 as 7.5, also in the texts of the specification list.
CREATE TABLE Toleranzen (
    ID              INTEGER PRIMARY KEY AUTOINCREMENT,
    Bezeichnung     TEXT COLLATE NOCASE,
    Prozent         NUMERIC,            -- % of the set power
    Watt            NUMERIC,            -- W, the least permissible deviation of power
    GrenzAbw        NUMERIC,            -- 1/min
    GKlasse         TEXT COLLATE NOCASE,
    Messverfahren   TEXT COLLATE NOCASE
);

CREATE TABLE Rezeptnamen (
    RezeptID    INTEGER PRIMARY KEY AUTOINCREMENT,
    RezName     TEXT COLLATE NOCASE,
    Toleranz    TEXT COLLATE NOCASE,    -- filled by updates from old files only
    ToleranzID  INTEGER
);
CREATE INDEX RezeptnamenRezName ON Rezeptnamen (RezName);

CREATE TABLE EP_Rezeptnamen (
    RezeptID        INTEGER PRIMARY KEY AUTOINCREMENT,
    RezName         TEXT COLLATE NOCASE,
    Toleranz        TEXT COLLATE NOCASE,    -- the class itself, no reference
    LetzterAufruf   INTEGER DEFAULT 0       -- -1 on the recipe used last
);


-- The stand ------------------------------------------------------------------------------------

-- Read by position. A new row for every calibration; the last row is the instrument in use.
CREATE TABLE Normalkalibrierdaten (
    NK_ID               INTEGER PRIMARY KEY AUTOINCREMENT,
    SerienNr            TEXT COLLATE NOCASE,
    Normal              TEXT COLLATE NOCASE,
    kalibriertVon       TEXT,               -- date
    kalibriertBis       TEXT,               -- date
    KalScheinNr         TEXT COLLATE NOCASE,
    Offset              REAL,               -- raw reading without load
    Gain_R              REAL,               -- raw gain reading less offset
    Gain_L              REAL,
    VK1_R               REAL,               -- moment factor: N m = raw / 50 * VK1
    VK1_L               REAL,
    HebelarmNr          TEXT COLLATE NOCASE,
    GrenzwStreubreite   REAL,               -- N m, limit of the spread
    AnzahlStreu         INTEGER             -- samples of one lever-arm run
);

-- Read by position. The first row holds the reference moments.
CREATE TABLE Hebelarmkalibrierung (
    ID          INTEGER PRIMARY KEY AUTOINCREMENT,
    Prüfer      TEXT COLLATE NOCASE,
    Prüfdatum   TEXT DEFAULT (datetime('now', 'localtime')),
    Erdschwere  REAL,                       -- m/s²
    Rechts      REAL,                       -- N m
    Links       REAL,                       -- N m, negative
    Streu_R     REAL,                       -- N m, standard deviation of the mean
    Streu_L     REAL,                       -- N m
    NK_ID       INTEGER
);

-- Both are read in the order of ID and by position: upper limit of the range, uncertainty.
CREATE TABLE MU_Leistung (
    ID          INTEGER PRIMARY KEY,
    bis         REAL,                       -- W
    MU          REAL                        -- first row W, all others % of the setpoint
);

CREATE TABLE MU_Drehzahl (
    ID          INTEGER PRIMARY KEY,
    bis         REAL,                       -- 1/min
    MU          REAL                        -- % of the reading
);


-- Settings -------------------------------------------------------------------------------------

-- Exactly one row, read by position up to EinlW.
CREATE TABLE System (
    Firmenname      TEXT COLLATE NOCASE,
    Produktname     TEXT COLLATE NOCASE,
    Einlzeit        INTEGER,                -- min, running-in before a lever-arm calibration
    Einlzeit2       REAL,                   -- running-in, minutes.seconds; 10.3 is 10 min 30 s
    Reserve4        TEXT COLLATE NOCASE,
    Reserve5        TEXT COLLATE NOCASE,
    Sprache         INTEGER,                -- 1 German, 2 English
    Reserve7        TEXT COLLATE NOCASE,
    EinlW           REAL,                   -- W, load during running-in
    DruckerPDF      TEXT COLLATE NOCASE,
    PDFOrdner       TEXT,
    Version         TEXT COLLATE NOCASE,    -- its existence marks a current database
    Endprüfung      INTEGER DEFAULT 0,      -- -1 shows the buttons of the final test
    Straße          TEXT COLLATE NOCASE,    -- of the laboratory, as all that follow; empty is left
    PLZ             TEXT COLLATE NOCASE,    -- out of the reports
    Ort             TEXT COLLATE NOCASE,
    Telefon         TEXT COLLATE NOCASE,
    EMail           TEXT COLLATE NOCASE
);

-- One row each: port number; baud, parity letter, data bits, stop bits.
CREATE TABLE Interface (
    PortNr      INTEGER,
    Parameter   TEXT COLLATE NOCASE
);

CREATE TABLE SecondInterface (
    PortNr      INTEGER,
    Parameter   TEXT COLLATE NOCASE
);


-- Final test -----------------------------------------------------------------------------------

CREATE TABLE EP (
    EP_ID           INTEGER PRIMARY KEY AUTOINCREMENT,
    SerienNr        TEXT COLLATE NOCASE,
    Prüfer          TEXT COLLATE NOCASE,
    kalibriertBis   TEXT COLLATE NOCASE,    -- month name and year
    Prüfdatum       TEXT COLLATE NOCASE,
    Messkopf        TEXT COLLATE NOCASE,
    Kunde           TEXT COLLATE NOCASE,
    Gerätetyp       TEXT COLLATE NOCASE,
    GeräteableitI   TEXT COLLATE NOCASE,    -- µA
    SchutzleiterR   TEXT COLLATE NOCASE,    -- Ohm
    IsolationsR     TEXT COLLATE NOCASE,    -- MOhm
    auf0            TEXT COLLATE NOCASE,    -- mmHg, as all of these
    auf50           TEXT COLLATE NOCASE,
    auf100          TEXT COLLATE NOCASE,
    auf150          TEXT COLLATE NOCASE,
    auf200          TEXT COLLATE NOCASE,
    auf250          TEXT COLLATE NOCASE,
    auf300          TEXT COLLATE NOCASE,
    Ablassrate      TEXT COLLATE NOCASE,    -- mmHg/s
    Rezept          TEXT COLLATE NOCASE,    -- of the last run, as all that follow
    Schritte        INTEGER,                -- that the recipe had
    Drehrichtung    INTEGER,                -- 1 right, 2 left
    NK_ID           INTEGER,                -- working standard
    Begonnen        TEXT,
    Dauer           INTEGER,                -- s; Null where nobody saw the end
    Vollständig     INTEGER                 -- -1 worked through, 0 stopped or under way
);
CREATE INDEX EPSerienNr ON EP (SerienNr);

CREATE TABLE EP_Messwerte (
    ProtokollID     INTEGER,                -- EP.EP_ID
    Prüfschritt     TEXT COLLATE NOCASE,
    Soll_n          TEXT COLLATE NOCASE,
    Soll_P          TEXT COLLATE NOCASE,
    Ist_n_torvena   TEXT COLLATE NOCASE,
    Ist_D_torvena   TEXT COLLATE NOCASE,
    Ist_P_torvena   TEXT COLLATE NOCASE,
    Ist_n_ergom     TEXT COLLATE NOCASE,
    Toleranz        TEXT COLLATE NOCASE,    -- verdict; Null when nothing was judged
    Klasse          TEXT,                   -- tolerance class that was judged by
    ZulAbwP         REAL,                   -- permissible deviation of power, W; Null for none
    ZulAbwN         REAL                    -- of speed, 1/min; Null for none
);
CREATE INDEX EP_MesswerteSchritt ON EP_Messwerte (ProtokollID, Prüfschritt);


-- The session of measuring under way, at most one row. One that a start of the program finds was cut
-- off. It refers to nothing that must be there.
CREATE TABLE Sitzung (
    ProtokollID     INTEGER,                -- Protokoll_temp
    RezeptID        INTEGER
);


-- The trail ------------------------------------------------------------------------------------

-- Who changed which row when: the links of a chain of hashes, appended by triggers (trail.sql) for all
-- tables but the staging ones, ÄndRez_temp, Sitzung and this one.
CREATE TABLE Nachweis (
    Nr          INTEGER PRIMARY KEY AUTOINCREMENT,
    Zeit        TEXT,                       -- UTC, by the clock of the computer
    Person      TEXT COLLATE NOCASE,        -- as it was given at the login
    Tabelle     TEXT,
    Vorgang     TEXT,                       -- neu, geändert, gelöscht; Bestand, Vermerk
    Schlüssel   TEXT,                       -- rowid; of a Bestand or Vermerk its occasion
    Alt         TEXT,                       -- JSON of the row; Null for a new one
    Neu         TEXT,                       -- JSON of the row; Null for a deleted one
    Vorher      TEXT,                       -- Kette of the link before
    Kette       TEXT                        -- SHA-256 over all columns before it, hex
);
-- By protocol number and number of a final test: '[7,null]', '[null,7]'.
CREATE INDEX NachweisProtokoll ON Nachweis (json_extract(IFNULL(Neu, Alt), '$.ProtokollID', '$.EP_ID'));


-- Staging of the reports -----------------------------------------------------------------------
--
-- Each holds the rows of the one protocol that is being printed, and is filled from the views of
-- the same number. What the columns mean is told at the views.

CREATE TABLE Bericht1 (
    ProtokollID         INTEGER,
    ProtokollName       TEXT COLLATE NOCASE,
    ErstellDatum        TEXT,
    Prüfername          TEXT COLLATE NOCASE,
    Firmenname          TEXT COLLATE NOCASE,
    FirmaStraße         TEXT COLLATE NOCASE,
    FirmaPLZ            TEXT COLLATE NOCASE,
    FirmaOrt            TEXT COLLATE NOCASE,
    FirmaTelefon        TEXT COLLATE NOCASE,
    FirmaEMail          TEXT COLLATE NOCASE,
    Kunde               TEXT COLLATE NOCASE,
    Straße              TEXT COLLATE NOCASE,
    PLZ                 TEXT COLLATE NOCASE,
    Ort                 TEXT COLLATE NOCASE,
    Gerätetyp           TEXT COLLATE NOCASE,
    Hersteller          TEXT COLLATE NOCASE,
    SerienNr            TEXT COLLATE NOCASE,
    IdentNr             TEXT COLLATE NOCASE,
    NächsteKalibrierung TEXT,
    Drehrichtung        INTEGER,
    Messverfahren       TEXT COLLATE NOCASE,
    Spezifikation       TEXT COLLATE NOCASE,
    Prozent             NUMERIC,
    Watt                NUMERIC,
    GrenzAbw            NUMERIC,
    GKlasse             TEXT COLLATE NOCASE,
    Normal              TEXT COLLATE NOCASE,
    NormalSerienNr      TEXT COLLATE NOCASE,
    kalibriertVon       TEXT,
    kalibriertBis       TEXT,
    KalScheinNr         TEXT COLLATE NOCASE,
    HebelarmNr          TEXT COLLATE NOCASE,
    gemessenVon         TEXT,
    gemessenBis         TEXT
);

CREATE TABLE Bericht2 (
    ProtokollID     INTEGER,
    ProtokollName   TEXT COLLATE NOCASE,
    Drehrichtung    INTEGER,
    Gruppe          INTEGER,
    Prüfschritt     NUMERIC,                -- numbers before 'FR', 2 before 10
    ErgometerMW     REAL,
    TorvenaMW       REAL,
    ZulAbw          REAL,
    RelAbw          REAL,
    TolAusN         REAL,
    TorvenaMW2      REAL,
    MU_ohne         TEXT COLLATE NOCASE,
    MU_mit          TEXT COLLATE NOCASE,
    MU_Proz         NUMERIC,
    Konform         TEXT COLLATE NOCASE,    -- page with or without conformity statement
    Soll_n          REAL,
    Soll_P          REAL,
    TorvenaM        REAL
);

CREATE TABLE Bericht3 (
    ProtokollID         INTEGER,
    ProtokollName       TEXT COLLATE NOCASE,
    ErstellDatum        TEXT,
    Prüfername          TEXT COLLATE NOCASE,
    Firmenname          TEXT COLLATE NOCASE,
    FirmaStraße         TEXT COLLATE NOCASE,
    FirmaPLZ            TEXT COLLATE NOCASE,
    FirmaOrt            TEXT COLLATE NOCASE,
    FirmaTelefon        TEXT COLLATE NOCASE,
    FirmaEMail          TEXT COLLATE NOCASE,
    Kunde               TEXT COLLATE NOCASE,
    Straße              TEXT COLLATE NOCASE,
    PLZ                 TEXT COLLATE NOCASE,
    Ort                 TEXT COLLATE NOCASE,
    Gerätetyp           TEXT COLLATE NOCASE,
    Hersteller          TEXT COLLATE NOCASE,
    SerienNr            TEXT COLLATE NOCASE,
    IdentNr             TEXT COLLATE NOCASE,
    NormalNr_STK        TEXT COLLATE NOCASE,
    KennNr_STK          TEXT COLLATE NOCASE,
    kalibriertVon_STK   TEXT COLLATE NOCASE,
    kalibriertBis_STK   TEXT COLLATE NOCASE,
    KalScheinNr_STK     TEXT COLLATE NOCASE,
    Messverfahren_STK   TEXT COLLATE NOCASE,
    SchutzleiterR       TEXT COLLATE NOCASE,
    IsolationsR         TEXT COLLATE NOCASE,
    GeräteableitI       TEXT COLLATE NOCASE,
    SchutzleiterR_GW    TEXT COLLATE NOCASE,
    IsolationsR_GW      TEXT COLLATE NOCASE,
    GeräteableitI_GW    TEXT COLLATE NOCASE,
    SchutzleiterR_MU    TEXT COLLATE NOCASE,
    IsolationsR_MU      TEXT COLLATE NOCASE,
    GeräteableitI_MU    TEXT COLLATE NOCASE
);

CREATE TABLE Bericht4 (
    ProtokollID         INTEGER,
    ProtokollName       TEXT COLLATE NOCASE,
    ErstellDatum        TEXT,
    Prüfername          TEXT COLLATE NOCASE,
    Firmenname          TEXT COLLATE NOCASE,
    FirmaStraße         TEXT COLLATE NOCASE,
    FirmaPLZ            TEXT COLLATE NOCASE,
    FirmaOrt            TEXT COLLATE NOCASE,
    FirmaTelefon        TEXT COLLATE NOCASE,
    FirmaEMail          TEXT COLLATE NOCASE,
    Kunde               TEXT COLLATE NOCASE,
    Straße              TEXT COLLATE NOCASE,
    PLZ                 TEXT COLLATE NOCASE,
    Ort                 TEXT COLLATE NOCASE,
    Gerätetyp           TEXT COLLATE NOCASE,
    Hersteller          TEXT COLLATE NOCASE,
    SerienNr            TEXT COLLATE NOCASE,
    IdentNr             TEXT COLLATE NOCASE,
    Normalanzeige       INTEGER,
    auf                 TEXT COLLATE NOCASE,
    ab                  TEXT COLLATE NOCASE,
    MU                  TEXT COLLATE NOCASE,
    NormalNr_BD         TEXT COLLATE NOCASE,
    KennNr_BD           TEXT COLLATE NOCASE,
    kalibriertVon_BD    TEXT COLLATE NOCASE,
    kalibriertBis_BD    TEXT COLLATE NOCASE,
    kalScheinNr_BD      TEXT COLLATE NOCASE
);

CREATE TABLE EP_Bericht5 (
    ProtokollID     INTEGER,
    SerienNr        TEXT COLLATE NOCASE,
    Prüfer          TEXT COLLATE NOCASE,
    kalibriertBis   TEXT COLLATE NOCASE,
    Prüfdatum       TEXT COLLATE NOCASE,
    Messkopf        TEXT COLLATE NOCASE,
    Kunde           TEXT COLLATE NOCASE,
    Gerätetyp       TEXT COLLATE NOCASE,
    GeräteableitI   TEXT COLLATE NOCASE,
    SchutzleiterR   TEXT COLLATE NOCASE,
    IsolationsR     TEXT COLLATE NOCASE,
    auf0            TEXT COLLATE NOCASE,
    auf50           TEXT COLLATE NOCASE,
    auf100          TEXT COLLATE NOCASE,
    auf150          TEXT COLLATE NOCASE,
    auf200          TEXT COLLATE NOCASE,
    auf250          TEXT COLLATE NOCASE,
    auf300          TEXT COLLATE NOCASE,
    Ablassrate      TEXT COLLATE NOCASE,
    Prüfschritt     NUMERIC,
    Soll_n          TEXT COLLATE NOCASE,
    Soll_P          TEXT COLLATE NOCASE,
    Ist_n_torvena   TEXT COLLATE NOCASE,
    Ist_D_torvena   TEXT COLLATE NOCASE,
    Ist_P_torvena   TEXT COLLATE NOCASE,
    Ist_n_ergom     TEXT COLLATE NOCASE,
    Toleranz        TEXT COLLATE NOCASE,
    Klasse          TEXT,
    ZulAbwP         REAL,
    ZulAbwN         REAL,
    Rezept          TEXT COLLATE NOCASE,
    Schritte        INTEGER,
    Drehrichtung    INTEGER,
    Begonnen        TEXT,
    Dauer           INTEGER,
    Vollständig     INTEGER,
    Normal          TEXT COLLATE NOCASE,
    NormalSerienNr  TEXT COLLATE NOCASE,
    KalScheinNr     TEXT COLLATE NOCASE,
    NormalVon       TEXT,
    NormalBis       TEXT,
    Firmenname      TEXT COLLATE NOCASE,
    FirmaStraße     TEXT COLLATE NOCASE,
    FirmaPLZ        TEXT COLLATE NOCASE,
    FirmaOrt        TEXT COLLATE NOCASE,
    FirmaTelefon    TEXT COLLATE NOCASE,
    FirmaEMail      TEXT COLLATE NOCASE
);
