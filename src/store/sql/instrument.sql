-- The stand of a new database: its line and its calibration. An update file has none, since these
-- rows come from the database in use.

INSERT INTO Interface (PortNr, Parameter) VALUES (1, '19200,N,8,1');

INSERT INTO Normalkalibrierdaten
    (NK_ID, SerienNr, Normal, kalibriertVon, kalibriertBis, KalScheinNr, Offset, Gain_R, Gain_L,
     VK1_R, VK1_L, HebelarmNr, GrenzwStreubreite, AnzahlStreu)
VALUES
    (1, 'TN-1001', 'Drehmomentnormal',
     date('now', 'localtime', '-6 months'), date('now', 'localtime', '+18 months'),
     'TN-1001/' || strftime('%Y-%m', 'now', 'localtime', '-6 months'),
     10000, 12500, 12500, 1.0, 1.0, 'HA-1001', 0.02, 25);

-- Reference moments at the gravity for which they hold. Dated today, so the first lever-arm
-- calibration is due in six months.
INSERT INTO Hebelarmkalibrierung (ID, Prüfer, Erdschwere, Rechts, Links, Streu_R, Streu_L, NK_ID)
VALUES (1, 'Referenz', 9.8108, 30.0, -30.0, 0.0, 0.0, 1);
