-- The rows of every new database.

INSERT INTO System
    (Firmenname, Produktname, Einlzeit, Einlzeit2, Sprache, EinlW, DruckerPDF, PDFOrdner, Version)
VALUES
    ('Prüfzentrum Torvena', 'torvena', 10, 10, 1, 60, 'torvena PDF', '.', '470');

INSERT INTO Interface (PortNr, Parameter) VALUES (1, '19200,N,8,1');
INSERT INTO SecondInterface (PortNr, Parameter) VALUES (4, '4800,N,8,1');

-- The ids are fixed: an update from old files gives recipes the specification 1 or 2.
INSERT INTO Toleranzen (ID, Bezeichnung, Prozent, Watt, GrenzAbw, GKlasse, Messverfahren)
VALUES
    (1, 'medizinische Geräte', 5, 3, 2, 'Medizinische Geräte',
        'Vergleich mit dem Drehmomentnormal, Mittelwert über sechs Umdrehungen'),
    (2, 'stationäre Trainingsgeräte', 10, 5, 5, 'Stationäre Trainingsgeräte',
        'Vergleich mit dem Drehmomentnormal, Mittelwert über sechs Umdrehungen');

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

-- Up to 100 W the uncertainty is 0.3 W, above it 0.3 %: the two meet at 100 W.
INSERT INTO MU_Leistung (ID, bis, MU) VALUES (1, 100, 0.3), (2, 1000, 0.3);
INSERT INTO MU_Drehzahl (ID, bis, MU) VALUES (1, 130, 0.2);
