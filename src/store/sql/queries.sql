-- The stored queries (views). They use only what SQLite has by itself, so that a database can be
-- looked at without the program.
--
-- Views come in two forms: neu over the working tables, alt over the archive. The two forms of a
-- view differ in nothing but the names of the tables.


-- Calibration history; the first row is the reference.
CREATE VIEW Historie AS
SELECT H.ID,
       H.Prüfer,
       H.Prüfdatum  AS Prdatum,
       H.Erdschwere,                    -- m/s²
       H.Rechts     AS Nm_rechts,       -- N m
       H.Streu_R,                       -- N m
       H.Links      AS Nm_links,        -- N m
       H.Streu_L,                       -- N m
       N.HebelarmNr
FROM Hebelarmkalibrierung H
LEFT JOIN Normalkalibrierdaten N ON N.NK_ID = H.NK_ID
ORDER BY H.ID;


-- What all pages tell of a protocol. A customer or unit deleted since leaves its columns Null.

CREATE VIEW BerichtKopfneu AS
SELECT P.ProtokollID,
       P.Protokollname AS ProtokollName,
       P.ErstellDatum,
       P.Prüfername,
       (SELECT Firmenname FROM System) AS Firmenname,
       K.Name AS Kunde, K.Straße, K.PLZ, K.Ort,
       E.Gerätetyp, E.Hersteller, E.SerienNr, E.IdentNr
FROM Protokoll_temp P
LEFT JOIN Kunden K ON K.KundenID = P.KundenID
LEFT JOIN Ergometer E ON E.GerätID = P.GerätID;

CREATE VIEW BerichtKopfalt AS
SELECT P.ProtokollID,
       P.Protokollname AS ProtokollName,
       P.ErstellDatum,
       P.Prüfername,
       (SELECT Firmenname FROM System) AS Firmenname,
       K.Name AS Kunde, K.Straße, K.PLZ, K.Ort,
       E.Gerätetyp, E.Hersteller, E.SerienNr, E.IdentNr
FROM Protokoll P
LEFT JOIN Kunden K ON K.KundenID = P.KundenID
LEFT JOIN Ergometer E ON E.GerätID = P.GerätID;


-- Cover sheet, one row a protocol.
--
-- NächsteKalibrierung  mm/yyyy, two years on. Put together from the parts of the date, since
--                      SQLite moves 29 February plus two years into March.
-- Messverfahren        as it was when the protocol was made, not that of the specification now
-- Prozent, Watt        %, W: limits of the specification for power
-- GrenzAbw             1/min: limit for speed

CREATE VIEW Bericht1neu AS
SELECT B.*,
       strftime('%m/', B.ErstellDatum) || (strftime('%Y', B.ErstellDatum) + 2)
           AS NächsteKalibrierung,
       P.Drehrichtung, P.Messverfahren,
       T.Bezeichnung AS Spezifikation, T.Prozent, T.Watt, T.GrenzAbw, T.GKlasse,
       N.Normal, N.SerienNr AS NormalSerienNr, N.kalibriertVon, N.kalibriertBis, N.KalScheinNr,
       N.HebelarmNr
FROM BerichtKopfneu B
JOIN Protokoll_temp P ON P.ProtokollID = B.ProtokollID
LEFT JOIN Toleranzen T ON T.ID = P.PrüfungsArt
LEFT JOIN Normalkalibrierdaten N ON N.NK_ID = P.NK_ID;

CREATE VIEW Bericht1alt AS
SELECT B.*,
       strftime('%m/', B.ErstellDatum) || (strftime('%Y', B.ErstellDatum) + 2)
           AS NächsteKalibrierung,
       P.Drehrichtung, P.Messverfahren,
       T.Bezeichnung AS Spezifikation, T.Prozent, T.Watt, T.GrenzAbw, T.GKlasse,
       N.Normal, N.SerienNr AS NormalSerienNr, N.kalibriertVon, N.kalibriertBis, N.KalScheinNr,
       N.HebelarmNr
FROM BerichtKopfalt B
JOIN Protokoll P ON P.ProtokollID = B.ProtokollID
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

CREATE VIEW Bericht2neu AS
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
    FROM Messwerte_temp
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
    JOIN Protokoll_temp P ON P.ProtokollID = W.ProtokollID
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

CREATE VIEW Bericht2alt AS
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
    FROM Messwerte
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
    JOIN Protokoll P ON P.ProtokollID = W.ProtokollID
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

CREATE VIEW Bericht3neu AS
SELECT B.*,
       S.NormalNr_STK, S.KennNr_STK, S.kalibriertVon_STK, S.kalibriertBis_STK, S.KalScheinNr_STK,
       S.Messverfahren_STK,
       S.SchutzleiterR,         -- Ohm
       S.IsolationsR,           -- MOhm
       S.GeräteableitI,         -- mA
       S.SchutzleiterR_GW, S.IsolationsR_GW, S.GeräteableitI_GW,
       S.SchutzleiterR_MU, S.IsolationsR_MU, S.GeräteableitI_MU
FROM BerichtKopfneu B
JOIN SecControl_temp S ON S.ProtokollID = B.ProtokollID;

CREATE VIEW Bericht3alt AS
SELECT B.*,
       S.NormalNr_STK, S.KennNr_STK, S.kalibriertVon_STK, S.kalibriertBis_STK, S.KalScheinNr_STK,
       S.Messverfahren_STK,
       S.SchutzleiterR,
       S.IsolationsR,
       S.GeräteableitI,
       S.SchutzleiterR_GW, S.IsolationsR_GW, S.GeräteableitI_GW,
       S.SchutzleiterR_MU, S.IsolationsR_MU, S.GeräteableitI_MU
FROM BerichtKopfalt B
JOIN SecControl S ON S.ProtokollID = B.ProtokollID;


-- Blood-pressure sheet, seven rows a protocol in rising order of pressure; texts as entered.

CREATE VIEW Bericht4neu AS
SELECT B.*,
       D.Normalanzeige,         -- mmHg, pressure at the working standard
       D.auf,                   -- mmHg, shown by the unit, rising
       D.ab,                    -- mmHg, falling
       D.MU,
       D.NormalNr_BD, D.KennNr_BD, D.kalibriertVon_BD, D.kalibriertBis_BD, D.kalScheinNr_BD
FROM BerichtKopfneu B
JOIN Blutdruck_temp D ON D.ProtokollID = B.ProtokollID
ORDER BY B.ProtokollID, D.Normalanzeige;

CREATE VIEW Bericht4alt AS
SELECT B.*,
       D.Normalanzeige,
       D.auf,
       D.ab,
       D.MU,
       D.NormalNr_BD, D.KennNr_BD, D.kalibriertVon_BD, D.kalibriertBis_BD, D.kalScheinNr_BD
FROM BerichtKopfalt B
JOIN Blutdruck D ON D.ProtokollID = B.ProtokollID
ORDER BY B.ProtokollID, D.Normalanzeige;


-- Final test, one row a step in the order of the steps, the head data in each.
CREATE VIEW EP_Bericht AS
SELECT EP.EP_ID AS ProtokollID,
       EP.SerienNr, EP.Prüfer, EP.kalibriertBis, EP.Prüfdatum, EP.Messkopf, EP.Kunde, EP.Gerätetyp,
       EP.GeräteableitI, EP.SchutzleiterR, EP.IsolationsR,
       EP.auf0, EP.auf50, EP.auf100, EP.auf150, EP.auf200, EP.auf250, EP.auf300, EP.Ablassrate,
       CASE WHEN M.Prüfschritt <> '' AND M.Prüfschritt NOT GLOB '*[^0-9]*'
            THEN CAST(M.Prüfschritt AS INTEGER) ELSE M.Prüfschritt END AS Prüfschritt,
       M.Soll_n, M.Soll_P, M.Ist_n_torvena, M.Ist_D_torvena, M.Ist_P_torvena, M.Ist_n_ergom,
       M.Toleranz
FROM EP
JOIN EP_Messwerte M ON M.ProtokollID = EP.EP_ID
ORDER BY 1, 20;
