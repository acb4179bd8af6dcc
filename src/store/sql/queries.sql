-- The stored queries (views). They use only what SQLite has by itself, so that a database can be
-- looked at without the program.
--
-- Those over the protocols stand in pairs.sql.


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


-- Final test, one row a step in the order of the steps, the head data in each.
CREATE VIEW EP_Bericht AS
SELECT EP.EP_ID AS ProtokollID,
       EP.SerienNr, EP.Prüfer, EP.kalibriertBis, EP.Prüfdatum, EP.Messkopf, EP.Kunde, EP.Gerätetyp,
       EP.GeräteableitI, EP.SchutzleiterR, EP.IsolationsR,
       EP.auf0, EP.auf50, EP.auf100, EP.auf150, EP.auf200, EP.auf250, EP.auf300, EP.Ablassrate,
       CASE WHEN M.Prüfschritt <> '' AND M.Prüfschritt NOT GLOB '*[^0-9]*'
            THEN CAST(M.Prüfschritt AS INTEGER) ELSE M.Prüfschritt END AS Prüfschritt,
       M.Soll_n, M.Soll_P, M.Ist_n_torvena, M.Ist_D_torvena, M.Ist_P_torvena, M.Ist_n_ergom,
       M.Toleranz, M.Klasse, M.ZulAbwP, M.ZulAbwN,
       EP.Rezept, EP.Schritte, EP.Drehrichtung, EP.Begonnen, EP.Dauer, EP.Vollständig,
       N.Normal, N.SerienNr AS NormalSerienNr, N.KalScheinNr,
       N.kalibriertVon AS NormalVon, N.kalibriertBis AS NormalBis,
       System.Firmenname, System.Straße AS FirmaStraße, System.PLZ AS FirmaPLZ,
       System.Ort AS FirmaOrt, System.Telefon AS FirmaTelefon, System.EMail AS FirmaEMail
FROM EP
JOIN EP_Messwerte M ON M.ProtokollID = EP.EP_ID
LEFT JOIN Normalkalibrierdaten N ON N.NK_ID = EP.NK_ID
LEFT JOIN System
ORDER BY 1, 20;


-- Archived heads are also deleted alone, and the highest number then comes free: nothing must be
-- left for the next protocol of that number. Working heads have no such trigger: archiving deletes
-- them before it has moved their rows.
CREATE TRIGGER ProtokollGelöscht AFTER DELETE ON Protokoll
BEGIN
    DELETE FROM Messwerte WHERE ProtokollID = OLD.ProtokollID;
    DELETE FROM SecControl WHERE ProtokollID = OLD.ProtokollID;
    DELETE FROM Blutdruck WHERE ProtokollID = OLD.ProtokollID;
END;

-- Customer and unit stay with an archived head as they were.
CREATE TRIGGER ProtokollArchiviert AFTER INSERT ON Protokoll WHEN NEW.Kunde IS NULL
BEGIN
    UPDATE Protokoll SET KundenID = KundenID WHERE ProtokollID = NEW.ProtokollID;
END;
CREATE TRIGGER ProtokollUmgehängt AFTER UPDATE OF KundenID, GerätID ON Protokoll
BEGIN
    UPDATE Protokoll
    SET (Kunde, Straße, PLZ, Ort) =
            (SELECT Name, Straße, PLZ, Ort FROM Kunden WHERE KundenID = NEW.KundenID),
        (Gerätetyp, Hersteller, SerienNr, IdentNr) =
            (SELECT Gerätetyp, Hersteller, SerienNr, IFNULL(IdentNr, '') FROM Ergometer
             WHERE GerätID = NEW.GerätID)
    WHERE ProtokollID = NEW.ProtokollID;
END;
