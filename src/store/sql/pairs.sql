-- What exists twice, word for word: working tables, marked {temp}, and archive, and the views over
-- each of them, marked {form}. Run once with "_temp" and "neu", once with "" and "alt".


-- Tables ---------------------------------------------------------------------------------------

-- The number is given by the program, the highest of both tables plus one. A head that comes a
-- second time raises a duplicate key.
CREATE TABLE Protokoll{temp} (
    ProtokollID     INTEGER PRIMARY KEY,
    Protokollname   TEXT COLLATE NOCASE,
    Prüfername      TEXT COLLATE NOCASE,
    GerätID         INTEGER,
    KundenID        INTEGER,
    Drehrichtung    INTEGER,                -- 1 right, 2 left
    PrüfungsArt     INTEGER,                -- Toleranzen.ID
    NK_ID           INTEGER,
    Messverfahren   TEXT COLLATE NOCASE,
    ErstellDatum    TEXT DEFAULT (date('now', 'localtime')),
    -- What the protocol meant, whatever becomes of the rows that it refers to: the specification as
    -- it was when it was chosen, customer and unit as they were when the head entered the archive.
    Spezifikation   TEXT COLLATE NOCASE,
    Prozent         NUMERIC,                -- %
    Watt            NUMERIC,                -- W
    GrenzAbw        NUMERIC,                -- 1/min
    GKlasse         TEXT COLLATE NOCASE,
    Kunde           TEXT COLLATE NOCASE,
    Straße          TEXT COLLATE NOCASE,
    PLZ             TEXT COLLATE NOCASE,
    Ort             TEXT COLLATE NOCASE,
    Gerätetyp       TEXT COLLATE NOCASE,
    Hersteller      TEXT COLLATE NOCASE,
    SerienNr        TEXT COLLATE NOCASE,
    IdentNr         TEXT COLLATE NOCASE
);
CREATE INDEX Protokoll{temp}Kunde ON Protokoll{temp} (KundenID, ErstellDatum);
CREATE INDEX Protokoll{temp}Gerät ON Protokoll{temp} (GerätID, ErstellDatum);

-- Values are the texts of the screen, with the decimal sign of the session that saved them.
-- No unique key: free steps ('FR') repeat, in the order of MDat.
CREATE TABLE Messwerte{temp} (
    ProtokollID     INTEGER,
    Prüfschritt     TEXT COLLATE NOCASE,    -- number from 1, or 'FR'
    Soll_n          TEXT COLLATE NOCASE,    -- 1/min
    Soll_P          TEXT COLLATE NOCASE,    -- W
    Ist_n_torvena   TEXT COLLATE NOCASE,    -- 1/min
    Ist_D_torvena   TEXT COLLATE NOCASE,    -- N m
    Ist_P_torvena   TEXT COLLATE NOCASE,    -- W
    Ist_n_ergom     TEXT COLLATE NOCASE,    -- 1/min, '0' after a power measurement
    MU_ohne         TEXT COLLATE NOCASE,    -- ja, nein; yes, no
    MU_mit          TEXT COLLATE NOCASE,    -- ja, nein; yes, no; ?
    MU_Proz         NUMERIC,                -- %
    MDat            TEXT DEFAULT (strftime('%Y-%m-%d %H:%M:%f', 'now', 'localtime')),
    ZulAbw          REAL                    -- W or 1/min, permissible when the values were written
);
CREATE INDEX Messwerte{temp}Schritt ON Messwerte{temp} (ProtokollID, Prüfschritt);

-- Seven rows a protocol, 0 to 300 mmHg.
CREATE TABLE Blutdruck{temp} (
    ProtokollID         INTEGER,
    Normalanzeige       INTEGER,            -- mmHg
    auf                 TEXT COLLATE NOCASE,
    ab                  TEXT COLLATE NOCASE,
    MU                  TEXT COLLATE NOCASE,
    NormalNr_BD         TEXT COLLATE NOCASE,
    KennNr_BD           TEXT COLLATE NOCASE,
    kalibriertVon_BD    TEXT COLLATE NOCASE,
    kalibriertBis_BD    TEXT COLLATE NOCASE,
    kalScheinNr_BD      TEXT COLLATE NOCASE
);
CREATE UNIQUE INDEX Blutdruck{temp}Stufe ON Blutdruck{temp} (ProtokollID, Normalanzeige);

-- One row a protocol. GW limit value, MU uncertainty.
CREATE TABLE SecControl{temp} (
    ProtokollID         INTEGER PRIMARY KEY,
    NormalNr_STK        TEXT COLLATE NOCASE,
    KennNr_STK          TEXT COLLATE NOCASE,
    kalibriertVon_STK   TEXT COLLATE NOCASE,
    kalibriertBis_STK   TEXT COLLATE NOCASE,
    KalScheinNr_STK     TEXT COLLATE NOCASE,
    Messverfahren_STK   TEXT COLLATE NOCASE,
    SchutzleiterR       TEXT COLLATE NOCASE,    -- Ohm
    IsolationsR         TEXT COLLATE NOCASE,    -- MOhm
    GeräteableitI       TEXT COLLATE NOCASE,    -- mA
    SchutzleiterR_GW    TEXT COLLATE NOCASE,
    IsolationsR_GW      TEXT COLLATE NOCASE,
    GeräteableitI_GW    TEXT COLLATE NOCASE,
    SchutzleiterR_MU    TEXT COLLATE NOCASE,
    IsolationsR_MU      TEXT COLLATE NOCASE,
    GeräteableitI_MU    TEXT COLLATE NOCASE
);


-- What is kept with a protocol ----------------------------------------------------------------

-- A measured value as numbers. Texts have a comma or a point.
--
-- Gruppe       1 power, 2 speed. A power measurement leaves the text 0 as reading of the
--              ergometer, so a reading of exactly 0 (or none) means power. A speed measurement on
--              an ergometer that shows nothing counts as power, too, unless the zero was entered
--              with a decimal.

CREATE VIEW Messwert{form} AS
SELECT rowid AS Zeile,
       ProtokollID,
       CASE WHEN TRIM(IFNULL(Ist_n_ergom, '')) IN ('', '0') THEN 1 ELSE 2 END AS Gruppe,
       CASE WHEN Prüfschritt <> '' AND Prüfschritt NOT GLOB '*[^0-9]*'
            THEN CAST(Prüfschritt AS INTEGER) ELSE Prüfschritt END AS Prüfschritt,
       CAST(REPLACE(Soll_n, ',', '.') AS REAL) AS Soll_n,
       CAST(REPLACE(Soll_P, ',', '.') AS REAL) AS Soll_P,
       CAST(REPLACE(Ist_n_torvena, ',', '.') AS REAL) AS Ist_n_torvena,
       CAST(REPLACE(Ist_D_torvena, ',', '.') AS REAL) AS Ist_D_torvena,
       CAST(REPLACE(Ist_P_torvena, ',', '.') AS REAL) AS Ist_P_torvena,
       CAST(REPLACE(Ist_n_ergom, ',', '.') AS REAL) AS Ist_n_ergom,
       MU_ohne, MU_mit, MU_Proz, MDat, ZulAbw
FROM Messwerte{temp};

-- The permissible deviation of a measured value by the specification of today, W or 1/min. Power:
-- the greater of Prozent % of the setpoint and Watt. Speed: GrenzAbw as a whole number, halves to
-- the even neighbour. Null without a specification.

CREATE VIEW Grenze{form} AS
SELECT W.Zeile,
       CASE W.Gruppe
           WHEN 1 THEN MAX(W.Soll_P * T.Prozent / 100.0, T.Watt * 1.0)
           ELSE ROUND(T.GrenzAbw) - (T.GrenzAbw - CAST(T.GrenzAbw AS INTEGER) = 0.5
                                     AND CAST(T.GrenzAbw AS INTEGER) % 2 = 0)
       END AS ZulAbw
FROM Messwert{form} W
JOIN Protokoll{temp} P ON P.ProtokollID = W.ProtokollID
LEFT JOIN Toleranzen T ON T.ID = P.PrüfungsArt;

-- A row that brings its own, as into the archive, keeps them. One that does not is written once
-- more, for the trigger of the changes.
CREATE TRIGGER Messwerte{temp}Neu AFTER INSERT ON Messwerte{temp} WHEN NEW.ZulAbw IS NULL
BEGIN
    UPDATE Messwerte{temp} SET Soll_P = Soll_P WHERE rowid = NEW.rowid;
END;
CREATE TRIGGER Messwerte{temp}Anders
AFTER UPDATE OF Soll_P, Ist_n_torvena, Ist_P_torvena, Ist_n_ergom ON Messwerte{temp}
BEGIN
    UPDATE Messwerte{temp} SET ZulAbw = (SELECT ZulAbw FROM Grenze{form} WHERE Zeile = NEW.rowid)
    WHERE rowid = NEW.rowid;
END;

CREATE TRIGGER Protokoll{temp}Neu AFTER INSERT ON Protokoll{temp} WHEN NEW.Spezifikation IS NULL
BEGIN
    UPDATE Protokoll{temp} SET PrüfungsArt = PrüfungsArt WHERE ProtokollID = NEW.ProtokollID;
END;
CREATE TRIGGER Protokoll{temp}Anders AFTER UPDATE OF PrüfungsArt ON Protokoll{temp}
BEGIN
    UPDATE Protokoll{temp}
    SET (Spezifikation, Prozent, Watt, GrenzAbw, GKlasse) =
        (SELECT Bezeichnung, Prozent, Watt, GrenzAbw, GKlasse FROM Toleranzen
         WHERE ID = NEW.PrüfungsArt)
    WHERE ProtokollID = NEW.ProtokollID;
END;


-- Views ----------------------------------------------------------------------------------------

-- What all pages tell of a protocol. In the archive customer and unit as they were then; otherwise
-- as they are, and Null once they are deleted.

CREATE VIEW BerichtKopf{form} AS
SELECT P.ProtokollID,
       P.Protokollname AS ProtokollName,
       P.ErstellDatum,
       P.Prüfername,
       System.Firmenname, System.Straße AS FirmaStraße, System.PLZ AS FirmaPLZ,
       System.Ort AS FirmaOrt, System.Telefon AS FirmaTelefon, System.EMail AS FirmaEMail,
       IFNULL(P.Kunde, K.Name) AS Kunde,
       CASE WHEN P.Kunde IS NULL THEN K.Straße ELSE P.Straße END AS Straße,
       CASE WHEN P.Kunde IS NULL THEN K.PLZ ELSE P.PLZ END AS PLZ,
       CASE WHEN P.Kunde IS NULL THEN K.Ort ELSE P.Ort END AS Ort,
       CASE WHEN P.IdentNr IS NULL THEN E.Gerätetyp ELSE P.Gerätetyp END AS Gerätetyp,
       CASE WHEN P.IdentNr IS NULL THEN E.Hersteller ELSE P.Hersteller END AS Hersteller,
       CASE WHEN P.IdentNr IS NULL THEN E.SerienNr ELSE P.SerienNr END AS SerienNr,
       IFNULL(P.IdentNr, E.IdentNr) AS IdentNr
FROM Protokoll{temp} P
LEFT JOIN System
LEFT JOIN Kunden K ON K.KundenID = P.KundenID
LEFT JOIN Ergometer E ON E.GerätID = P.GerätID;


-- Cover sheet, one row a protocol.
--
-- NächsteKalibrierung  mm/yyyy, two years on. Put together from the parts of the date, since
--                      SQLite moves 29 February plus two years into March.
-- Messverfahren, Spezifikation, Prozent, Watt, GrenzAbw, GKlasse
--                      as they were when the protocol was made
-- Prozent, Watt        %, W: limits of the specification for power
-- GrenzAbw             1/min: limit for speed
-- gemessenVon, gemessenBis
--                      date and time of the first and of the last measured value; Null without

CREATE VIEW Bericht1{form} AS
SELECT B.*,
       strftime('%m/', B.ErstellDatum) || (strftime('%Y', B.ErstellDatum) + 2)
           AS NächsteKalibrierung,
       P.Drehrichtung, P.Messverfahren,
       P.Spezifikation, P.Prozent, P.Watt, P.GrenzAbw, P.GKlasse,
       N.Normal, N.SerienNr AS NormalSerienNr, N.kalibriertVon, N.kalibriertBis, N.KalScheinNr,
       N.HebelarmNr,
       (SELECT MIN(MDat) FROM Messwerte{temp} M WHERE M.ProtokollID = B.ProtokollID) AS gemessenVon,
       (SELECT MAX(MDat) FROM Messwerte{temp} M WHERE M.ProtokollID = B.ProtokollID) AS gemessenBis
FROM BerichtKopf{form} B
JOIN Protokoll{temp} P ON P.ProtokollID = B.ProtokollID
LEFT JOIN Normalkalibrierdaten N ON N.NK_ID = P.NK_ID;


-- Measuring results, one row a measured value.
--
-- Gruppe       1 power, 2 speed
-- Prüfschritt  numbers as numbers, other texts after them: 2, 10, FR
-- ErgometerMW  power: W, the setpoint at the ergometer; speed: 1/min, as read off the ergometer
-- TorvenaMW    the same quantity, measured by the working standard
-- ZulAbw       permissible deviation, W or 1/min, as it was when the value was written
-- RelAbw       %, deviation relative to ErgometerMW; positive when the ergometer says more than the
--              standard measures. Null when ErgometerMW is 0.
-- TolAusN      %, share of the permissible deviation that is used up; above 100 is out of it.
--              Null when nothing is permitted.
-- TorvenaMW2   the other quantity of the working standard: speed in a power row, power in a
--              speed row
-- MU_Proz      %, measurement uncertainty
-- Soll_n, Soll_P, TorvenaM
--              1/min, W: setpoints; N m: torque of the working standard
--
-- RelAbw and TolAusN are rounded to two decimals, which drops binary noise and still shows the
-- first hundredth of a watt or of a revolution beyond the limit as more than 100 % in TolAusN.

CREATE VIEW Bericht2{form} AS
WITH Zeile AS (
    SELECT P.ProtokollID, P.Protokollname, P.Drehrichtung, W.Gruppe, W.Prüfschritt,
           CASE W.Gruppe WHEN 1 THEN W.Soll_P ELSE W.Ist_n_ergom END AS ErgometerMW,
           CASE W.Gruppe WHEN 1 THEN W.Ist_P_torvena ELSE W.Ist_n_torvena END AS TorvenaMW,
           CASE W.Gruppe WHEN 1 THEN W.Ist_n_torvena ELSE W.Ist_P_torvena END AS TorvenaMW2,
           W.ZulAbw, W.MU_ohne, W.MU_mit, W.MU_Proz,
           W.Soll_n, W.Soll_P, W.Ist_D_torvena AS TorvenaM
    FROM Messwert{form} W
    JOIN Protokoll{temp} P ON P.ProtokollID = W.ProtokollID
)
SELECT ProtokollID,
       Protokollname AS ProtokollName,
       Drehrichtung,
       Gruppe,
       Prüfschritt,
       ErgometerMW,
       TorvenaMW,
       ZulAbw,
       ROUND(100.0 * (ErgometerMW - TorvenaMW) / NULLIF(ErgometerMW, 0), 2) AS RelAbw,
       ROUND(100.0 * ABS(ErgometerMW - TorvenaMW) / NULLIF(ZulAbw, 0), 2) AS TolAusN,
       TorvenaMW2,
       MU_ohne,
       MU_mit,
       MU_Proz,
       Soll_n,
       Soll_P,
       TorvenaM
FROM Zeile;


-- Electrical safety sheet, one row a protocol. GW limit value, MU uncertainty; texts as entered.

CREATE VIEW Bericht3{form} AS
SELECT B.*,
       S.NormalNr_STK, S.KennNr_STK, S.kalibriertVon_STK, S.kalibriertBis_STK, S.KalScheinNr_STK,
       S.Messverfahren_STK,
       S.SchutzleiterR,         -- Ohm
       S.IsolationsR,           -- MOhm
       S.GeräteableitI,         -- mA
       S.SchutzleiterR_GW, S.IsolationsR_GW, S.GeräteableitI_GW,
       S.SchutzleiterR_MU, S.IsolationsR_MU, S.GeräteableitI_MU
FROM BerichtKopf{form} B
JOIN SecControl{temp} S ON S.ProtokollID = B.ProtokollID;


-- Blood-pressure sheet, seven rows a protocol in rising order of pressure; texts as entered.

CREATE VIEW Bericht4{form} AS
SELECT B.*,
       D.Normalanzeige,         -- mmHg, pressure at the working standard
       D.auf,                   -- mmHg, shown by the unit, rising
       D.ab,                    -- mmHg, falling
       D.MU,
       D.NormalNr_BD, D.KennNr_BD, D.kalibriertVon_BD, D.kalibriertBis_BD, D.kalScheinNr_BD
FROM BerichtKopf{form} B
JOIN Blutdruck{temp} D ON D.ProtokollID = B.ProtokollID
ORDER BY B.ProtokollID, D.Normalanzeige;
