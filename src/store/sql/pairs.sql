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
    ErstellDatum    TEXT DEFAULT (date('now', 'localtime'))
);
CREATE INDEX Protokoll{temp}KundenID ON Protokoll{temp} (KundenID);
CREATE INDEX Protokoll{temp}GerätID ON Protokoll{temp} (GerätID);

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
    MDat            TEXT DEFAULT (strftime('%Y-%m-%d %H:%M:%f', 'now', 'localtime'))
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


-- Views ----------------------------------------------------------------------------------------

-- What all pages tell of a protocol. A customer or unit deleted since leaves its columns Null.

CREATE VIEW BerichtKopf{form} AS
SELECT P.ProtokollID,
       P.Protokollname AS ProtokollName,
       P.ErstellDatum,
       P.Prüfername,
       (SELECT Firmenname FROM System) AS Firmenname,
       K.Name AS Kunde, K.Straße, K.PLZ, K.Ort,
       E.Gerätetyp, E.Hersteller, E.SerienNr, E.IdentNr
FROM Protokoll{temp} P
LEFT JOIN Kunden K ON K.KundenID = P.KundenID
LEFT JOIN Ergometer E ON E.GerätID = P.GerätID;


-- Cover sheet, one row a protocol.
--
-- NächsteKalibrierung  mm/yyyy, two years on. Put together from the parts of the date, since
--                      SQLite moves 29 February plus two years into March.
-- Messverfahren        as it was when the protocol was made, not that of the specification now
-- Prozent, Watt        %, W: limits of the specification for power
-- GrenzAbw             1/min: limit for speed

CREATE VIEW Bericht1{form} AS
SELECT B.*,
       strftime('%m/', B.ErstellDatum) || (strftime('%Y', B.ErstellDatum) + 2)
           AS NächsteKalibrierung,
       P.Drehrichtung, P.Messverfahren,
       T.Bezeichnung AS Spezifikation, T.Prozent, T.Watt, T.GrenzAbw, T.GKlasse,
       N.Normal, N.SerienNr AS NormalSerienNr, N.kalibriertVon, N.kalibriertBis, N.KalScheinNr,
       N.HebelarmNr
FROM BerichtKopf{form} B
JOIN Protokoll{temp} P ON P.ProtokollID = B.ProtokollID
LEFT JOIN Toleranzen T ON T.ID = P.PrüfungsArt
LEFT JOIN Normalkalibrierdaten N ON N.NK_ID = P.NK_ID;


-- Measuring results, one row a measured value.
--
-- Gruppe       1 power, 2 speed. A power measurement leaves the text 0 as reading of the
--              ergometer, so a reading of exactly 0 (or none) means power. A speed measurement on
--              an ergometer that shows nothing counts as power, too, unless the zero was entered
--              with a decimal.
-- Prüfschritt  numbers as numbers, other texts after them: 2, 10, FR
-- ErgometerMW  power: W, the setpoint at the ergometer; speed: 1/min, as read off the ergometer
-- TorvenaMW    the same quantity, measured by the working standard
-- ZulAbw       permissible deviation, W or 1/min. Power: the greater of Prozent % of the setpoint
--              and Watt. Speed: GrenzAbw as a whole number, halves to the even neighbour.
--              Null without a specification.
-- RelAbw       %, deviation relative to ErgometerMW; positive when the ergometer says more than the
--              standard measures. Null when ErgometerMW is 0.
-- TolAusN      %, share of the permissible deviation that is used up; above 100 is out of it.
--              Null when nothing is permitted.
-- TorvenaMW2   the other quantity of the working standard: speed in a power row, power in a
--              speed row
-- MU_Proz      %, measurement uncertainty
--
-- RelAbw and TolAusN are rounded to two decimals, which drops binary noise and still shows the
-- first hundredth of a watt or of a revolution beyond the limit as more than 100 % in TolAusN.

CREATE VIEW Bericht2{form} AS
WITH Wert AS (
    SELECT ProtokollID,
           CASE WHEN TRIM(IFNULL(Ist_n_ergom, '')) IN ('', '0') THEN 1 ELSE 2 END AS Gruppe,
           CASE WHEN Prüfschritt <> '' AND Prüfschritt NOT GLOB '*[^0-9]*'
                THEN CAST(Prüfschritt AS INTEGER) ELSE Prüfschritt END AS Prüfschritt,
           CAST(REPLACE(Soll_P, ',', '.') AS REAL) AS Soll_P,
           CAST(REPLACE(Ist_n_torvena, ',', '.') AS REAL) AS Ist_n_torvena,
           CAST(REPLACE(Ist_P_torvena, ',', '.') AS REAL) AS Ist_P_torvena,
           CAST(REPLACE(Ist_n_ergom, ',', '.') AS REAL) AS Ist_n_ergom,
           MU_ohne, MU_mit, MU_Proz
    FROM Messwerte{temp}
),
Zeile AS (
    SELECT P.ProtokollID, P.Protokollname, P.Drehrichtung, W.Gruppe, W.Prüfschritt,
           CASE W.Gruppe WHEN 1 THEN W.Soll_P ELSE W.Ist_n_ergom END AS ErgometerMW,
           CASE W.Gruppe WHEN 1 THEN W.Ist_P_torvena ELSE W.Ist_n_torvena END AS TorvenaMW,
           CASE W.Gruppe WHEN 1 THEN W.Ist_n_torvena ELSE W.Ist_P_torvena END AS TorvenaMW2,
           CASE W.Gruppe
               WHEN 1 THEN MAX(W.Soll_P * T.Prozent / 100.0, T.Watt * 1.0)
               ELSE ROUND(T.GrenzAbw) - (T.GrenzAbw - CAST(T.GrenzAbw AS INTEGER) = 0.5
                                         AND CAST(T.GrenzAbw AS INTEGER) % 2 = 0)
           END AS ZulAbw,
           W.MU_ohne, W.MU_mit, W.MU_Proz
    FROM Wert W
    JOIN Protokoll{temp} P ON P.ProtokollID = W.ProtokollID
    LEFT JOIN Toleranzen T ON T.ID = P.PrüfungsArt
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
       MU_Proz
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
