-- The rows of every new database, and of an update file: those that an old database never replaces,
-- or replaces whole.

INSERT INTO System
    (Firmenname, Produktname, Einlzeit, Einlzeit2, Sprache, EinlW, DruckerPDF, PDFOrdner, Version)
VALUES
    ('Prüfzentrum Torvena', 'torvena', 10, 10, 1, 60, 'torvena PDF', '.', '470');

INSERT INTO SecondInterface (PortNr, Parameter) VALUES (4, '4800,N,8,1');

-- The ids are fixed: an update from old files gives recipes the specification 1 or 2.
INSERT INTO Toleranzen (ID, Bezeichnung, Prozent, Watt, GrenzAbw, GKlasse, Messverfahren)
VALUES
    (1, 'medizinische Geräte', 5, 3, 2, 'Medizinische Geräte',
        'Vergleich mit dem Drehmomentnormal, Mittelwert über sechs Umdrehungen'),
    (2, 'stationäre Trainingsgeräte', 10, 5, 5, 'Stationäre Trainingsgeräte',
        'Vergleich mit dem Drehmomentnormal, Mittelwert über sechs Umdrehungen');

-- Up to 100 W the uncertainty is 0.3 W, above it 0.3 %: the two meet at 100 W.
INSERT INTO MU_Leistung (ID, bis, MU) VALUES (1, 100, 0.3), (2, 1000, 0.3);
INSERT INTO MU_Drehzahl (ID, bis, MU) VALUES (1, 130, 0.2);
