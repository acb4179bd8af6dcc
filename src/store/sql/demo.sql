-- Sample data for demonstrations and training, on top of the delivered rows: customers, units,
-- recipes, working and archived protocols. All names are invented. Dates count back from today.


-- History of the stand -------------------------------------------------------------------------

-- The delivered calibration becomes the previous one, so that old protocols have a standard that
-- was calibrated at the time; the one in use follows it.
UPDATE Normalkalibrierdaten
SET kalibriertVon = date('now', 'localtime', '-44 months'),
    kalibriertBis = date('now', 'localtime', '-20 months'),
    KalScheinNr = 'TN-1001/' || strftime('%Y-%m', 'now', 'localtime', '-44 months');

INSERT INTO Normalkalibrierdaten
    (SerienNr, Normal, kalibriertVon, kalibriertBis, KalScheinNr, Offset, Gain_R, Gain_L,
     VK1_R, VK1_L, HebelarmNr, GrenzwStreubreite, AnzahlStreu)
SELECT SerienNr, Normal,
       date('now', 'localtime', '-20 months'), date('now', 'localtime', '+4 months'),
       'TN-1001/' || strftime('%Y-%m', 'now', 'localtime', '-20 months'),
       Offset, Gain_R, Gain_L, VK1_R, VK1_L, HebelarmNr, GrenzwStreubreite, AnzahlStreu
FROM Normalkalibrierdaten;

UPDATE Hebelarmkalibrierung
SET Prüfdatum = datetime('now', 'localtime', '-43 months', 'start of day', '+9 hours');

WITH Kalibrierung (Monate, Prüfer, Rechts, Links, Streu_R, Streu_L, NK_ID) AS (VALUES
    (37, 'M. Berger',    30.016, -29.996, 0.0062, 0.0064, 1),
    (31, 'M. Berger',    29.983, -30.024, 0.0034, 0.0018, 1),
    (25, 'S. Lindqvist', 30.002, -30.006, 0.0053, 0.0044, 1),
    (19, 'M. Berger',    30.000, -30.007, 0.0046, 0.0057, 2),
    (14, 'M. Berger',    30.018, -30.017, 0.0032, 0.0040, 2),
    (8,  'S. Lindqvist', 30.029, -29.990, 0.0064, 0.0040, 2),
    (2,  'M. Berger',    30.013, -30.013, 0.0046, 0.0039, 2)
)
INSERT INTO Hebelarmkalibrierung
    (Prüfer, Prüfdatum, Erdschwere, Rechts, Links, Streu_R, Streu_L, NK_ID)
SELECT Prüfer,
       datetime('now', 'localtime', -Monate || ' months', 'start of day', '+9 hours'),
       9.8107, Rechts, Links, Streu_R, Streu_L, NK_ID
FROM Kalibrierung
ORDER BY Monate DESC;


-- Customers and units --------------------------------------------------------------------------

INSERT INTO Kunden (KundenID, Name, Straße, PLZ, Ort)
VALUES
    (1, 'Klinikum Ährenfeld', 'Lindenallee 12', '36902', 'Ährenfeld'),
    (2, 'Herzzentrum Talbrück', 'Am Mühlbach 3', '57413', 'Talbrück'),
    (3, 'Reha-Klinik Sonnenhöhe', 'Kurweg 8', '83958', 'Bad Quellingen'),
    (4, 'Praxis Dr. Öztürk-Weiß', 'Marktplatz 1', '70912', 'Neuwalden'),
    (5, 'Fitnessstudio Kraftwerk Süd', 'Industriestraße 45a', '86914', 'Großlohe'),
    (6, 'O''Malley''s Gym & Physio', '7 Weaver''s Row', 'HB4 2XY', 'Harbrook'),
    (7, 'Kantonsspital Seewilen', 'Spitalgasse 20', '6998', 'Seewilen'),
    (8, 'Rehabilitationszentrum Oberkirchbach', 'Hauptplatz 5', '8997', 'Oberkirchbach'),
    (9, 'Gemeinschaftspraxis für Innere Medizin, Kardiologie, Sportmedizin ' ||
        'und Leistungsdiagnostik am Städtischen Krankenhaus Großlohe, Außenstelle Übungszentrum',
        'Straße der Sporttherapie 104', '86914', 'Großlohe'),
    (10, 'Trainingsinsel Lirrstadt', 'Seestraße 9', '31987', 'Lirrstadt'),
    (11, 'Sportwissenschaftliches Institut Lirrstadt', 'Campusring 100', '31988', 'Lirrstadt'),
    (12, 'St Aldwyn Hospital, Cardiac Unit', 'Ashcombe Road', 'AV1 7QT', 'Ashcombe Vale');

INSERT INTO Ergometer (GerätID, KundenID, Gerätetyp, Hersteller, SerienNr, IdentNr)
VALUES
    (1,  1,  'KE 200 med', 'Radolin',           '200-04711', 'AEH-001'),
    (2,  1,  'KE 200 med', 'Radolin',           '200-04712', 'AEH-002'),
    (3,  1,  'KE 200 med', 'Radolin',           '200-05120', 'AEH-003'),
    (4,  1,  'Kardio L4',  'Tretmann',          'L4/0932',   'AEH-017'),
    (5,  2,  'Kardio L4',  'Tretmann',          'L4/0801',   'HZT-1'),
    (6,  2,  'KE 300 BD',  'Radolin',           '300-00214', 'HZT-2'),
    (7,  3,  'Reha-Rad 7', 'Kurbelwerk Öhrtal', 'R7-2231',   'SH-101'),
    (8,  3,  'Reha-Rad 7', 'Kurbelwerk Öhrtal', 'R7-2232',   'SH-102'),
    (9,  3,  'Reha-Rad 9', 'Kurbelwerk Öhrtal', 'R9-0077',   'SH-103'),
    (10, 4,  'KE 300 BD',  'Radolin',           '300-00377', 'OEW-1'),
    (11, 5,  'Studio 500', 'Tretmann',          'S500-1180', 'KS-01'),
    (12, 5,  'Studio 500', 'Tretmann',          'S500-1181', 'KS-02'),
    (13, 5,  'Studio 500', 'Tretmann',          'S500-1202', 'KS-03'),
    (14, 5,  'Sprint X',   'Haverlock',         'HX-55019',  'KS-04'),
    (15, 6,  'Sprint X',   'Haverlock',         'HX-60233',  'OMG-A'),
    (16, 6,  'Sprint X',   'Haverlock',         'HX-60234',  'OMG-B'),
    (17, 7,  'KE 300 BD',  'Radolin',           '300-00450', 'SEE-11'),
    (18, 7,  'Kardio L4',  'Tretmann',          'L4/1107',   'SEE-12'),
    (19, 8,  'Reha-Rad 9', 'Kurbelwerk Öhrtal', 'R9-0140',   'OKB-1'),
    (20, 9,  'KE 200 med', 'Radolin',           '200-06003', 'GLO-Ü-1'),
    (21, 10, 'Studio 500', 'Tretmann',          'S500-1433', 'TIL-1'),
    (22, 10, 'Studio 500', 'Tretmann',          'S500-1434', 'TIL-2'),
    (23, 11, 'KE 300 BD',  'Radolin',           '300-00512', 'SIL-2019/1'),
    (24, 11, 'Studio 500', 'Tretmann',          'S500-0990', 'SIL-2019/2'),
    (25, 11, 'Reha-Rad 9', 'Kurbelwerk Öhrtal', 'R9-0201',   'SIL-2021/1'),
    (26, 12, 'Cardio Pro', 'Haverlock',         'HC-7001',   'STA-1');


-- Recipes --------------------------------------------------------------------------------------

INSERT INTO Rezeptnamen (RezeptID, RezName, ToleranzID)
VALUES
    (1, 'Kurzprüfung',          1),
    (2, 'Medizin 25 bis 400 W', 1),
    (3, 'Reha bis 150 W',       1),
    (4, 'Training Basis',       2),
    (5, 'Studio Dauerbetrieb',  2);

INSERT INTO Rezepte (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart)
VALUES
    (1, '1',  '60',  100, '1'),
    (1, '2',  '80',  0,   '2'),
    (2, '1',  '60',  25,  '1'),
    (2, '2',  '60',  50,  '1'),
    (2, '3',  '60',  75,  '1'),
    (2, '4',  '60',  100, '1'),
    (2, '5',  '60',  150, '1'),
    (2, '6',  '60',  200, '1'),
    (2, '7',  '60',  250, '1'),
    (2, '8',  '60',  300, '1'),
    (2, '9',  '60',  350, '1'),
    (2, '10', '70',  400, '1'),
    (2, '11', '50',  50,  '2'),
    (2, '12', '90',  100, '2'),
    (3, '1',  '50',  25,  '1'),
    (3, '2',  '50',  50,  '1'),
    (3, '3',  '50',  75,  '1'),
    (3, '4',  '60',  100, '1'),
    (3, '5',  '60',  150, '1'),
    (3, '6',  '50',  50,  '2'),
    (3, '7',  '60',  50,  '2'),
    (4, '1',  '60',  50,  '1'),
    (4, '2',  '60',  100, '1'),
    (4, '3',  '70',  150, '1'),
    (4, '4',  '80',  200, '1'),
    (4, '5',  '60',  100, '2'),
    (4, '6',  '90',  100, '2'),
    (5, '1',  '60',  50,  '1'),
    (5, '2',  '60',  100, '1'),
    (5, '3',  '60',  150, '1'),
    (5, '4',  '70',  200, '1'),
    (5, '5',  '70',  250, '1'),
    (5, '6',  '80',  300, '1'),
    (5, '7',  '90',  400, '1'),
    (5, '8',  '60',  100, '2'),
    (5, '9',  '80',  100, '2'),
    (5, '10', '100', 100, '2');


-- Recipes of the final test --------------------------------------------------------------------

INSERT INTO EP_Rezeptnamen (RezeptID, RezName, Toleranz, LetzterAufruf)
VALUES
    (1, 'Endprüfung Medizin',  'medizinische Geräte',        -1),
    (2, 'Endprüfung Training', 'stationäre Trainingsgeräte', 0);

INSERT INTO EP_Rezepte
    (RezeptID, Prüfschritt, Drehzahl, Leistung, Prüfart, SSCode, MessSchritte)
VALUES
    (1, '1', '60', 50,  '2', 'W050[13]', '3'),
    (1, '2', '60', 150, '2', 'W150[13]', '3'),
    (1, '3', '70', 300, '2', 'W300[13]', '3'),
    (2, '1', '60', 25,  '2', 'W025[13]', '2'),
    (2, '2', '60', 100, '2', 'W100[13]', '2'),
    (2, '3', '80', 250, '2', 'W250[13]', '2'),
    (2, '4', '90', 400, '2', 'W400[13]', '3');


-- Archived protocols ---------------------------------------------------------------------------

WITH Kopf (ProtokollID, Protokollname, Prüfername, GerätID, Drehrichtung, PrüfungsArt, NK_ID,
           Tage) AS (VALUES
    (1,  'Erstkalibrierung',            'M. Berger',    1,  1, 1, 1, 1070),
    (2,  'Erstkalibrierung',            'M. Berger',    2,  1, 1, 1, 1070),
    (3,  'Aufnahmeprüfung',             'M. Berger',    6,  1, 1, 1, 981),
    (4,  'Reha 101',                    'S. Lindqvist', 7,  1, 1, 1, 902),
    (5,  'Reha 103',                    'S. Lindqvist', 9,  2, 1, 1, 902),
    (6,  'Studio Süd 1',                'M. Berger',    11, 1, 2, 1, 815),
    (7,  'Studio Süd 2',                'M. Berger',    12, 1, 2, 1, 815),
    (8,  'Annual check A',              'J. Whitcombe', 15, 1, 2, 1, 720),
    (9,  'Rückruf Öztürk',              'S. Lindqvist', 10, 1, 1, 1, 655),
    (10, 'Wiederholung nach Reparatur', 'M. Berger',    1,  1, 1, 2, 540),
    (11, 'Seewilen 11',                 'M. Berger',    17, 2, 1, 2, 412),
    (12, 'Annual check A',              'J. Whitcombe', 15, 1, 2, 2, 355),
    (13, 'Kirchbach',                   'S. Lindqvist', 19, 1, 1, 2, 240),
    (14, 'Insel 1',                     'M. Berger',    21, 1, 2, 2, 128),
    (15, 'Insel 2',                     'M. Berger',    22, 2, 2, 2, 128)
)
INSERT INTO Protokoll
    (ProtokollID, Protokollname, Prüfername, GerätID, KundenID, Drehrichtung, PrüfungsArt, NK_ID,
     Messverfahren, ErstellDatum)
SELECT K.ProtokollID, K.Protokollname, K.Prüfername, K.GerätID, E.KundenID, K.Drehrichtung,
       K.PrüfungsArt, K.NK_ID, T.Messverfahren, date('now', 'localtime', -K.Tage || ' days')
FROM Kopf K
JOIN Ergometer E ON E.GerätID = K.GerätID
LEFT JOIN Toleranzen T ON T.ID = K.PrüfungsArt;

INSERT INTO Messwerte
    (ProtokollID, Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, Ist_D_torvena, Ist_P_torvena,
     Ist_n_ergom, MU_ohne, MU_mit, MU_Proz)
VALUES
    (1,  '1',  '60,0',  '25,0',  '60,08',  '3,96',  '24,90',  '0',     'ja',   'ja',   1.2),
    (1,  '2',  '60,0',  '50,0',  '60,01',  '7,91',  '49,70',  '0',     'ja',   'ja',   0.6),
    (1,  '3',  '60,0',  '75,0',  '60,01',  '11,80', '74,14',  '0',     'ja',   'ja',   0.4),
    (1,  '4',  '60,0',  '100,0', '59,98',  '15,76', '98,99',  '0',     'ja',   'ja',   0.3),
    (1,  '5',  '60,0',  '150,0', '60,01',  '23,69', '148,85', '0',     'ja',   'ja',   0.3),
    (1,  '6',  '60,0',  '200,0', '60,04',  '31,58', '198,56', '0',     'ja',   'ja',   0.3),
    (1,  '7',  '60,0',  '250,0', '60,07',  '39,55', '248,80', '0',     'ja',   'ja',   0.3),
    (1,  '8',  '60,0',  '300,0', '59,99',  '47,43', '297,96', '0',     'ja',   'ja',   0.3),
    (1,  '9',  '60,0',  '350,0', '60,00',  '55,39', '348,01', '0',     'ja',   'ja',   0.3),
    (1,  '10', '70,0',  '400,0', '69,97',  '54,13', '396,63', '0',     'ja',   'ja',   0.3),
    (1,  '11', '50,0',  '50,0',  '50,01',  '9,50',  '49,77',  '50,1',  'ja',   'ja',   0.2),
    (1,  '12', '90,0',  '100,0', '90,01',  '10,55', '99,43',  '90,1',  'ja',   'ja',   0.2),
    (2,  '1',  '60,0',  '25,0',  '59,95',  '4,02',  '25,23',  '0',     'ja',   'ja',   1.2),
    (2,  '2',  '60,0',  '50,0',  '60,01',  '8,06',  '50,63',  '0',     'ja',   'ja',   0.6),
    (2,  '3',  '60,0',  '75,0',  '59,94',  '12,09', '75,87',  '0',     'ja',   'ja',   0.4),
    (2,  '4',  '60,0',  '100,0', '60,00',  '16,13', '101,36', '0',     'ja',   'ja',   0.3),
    (2,  '5',  '60,0',  '150,0', '60,02',  '24,18', '151,98', '0',     'ja',   'ja',   0.3),
    (2,  '6',  '60,0',  '200,0', '60,01',  '32,12', '201,83', '0',     'ja',   'ja',   0.3),
    (2,  '7',  '60,0',  '250,0', '60,00',  '40,12', '252,07', '0',     'ja',   'ja',   0.3),
    (2,  '8',  '60,0',  '300,0', '60,04',  '48,02', '301,95', '0',     'ja',   'ja',   0.3),
    (2,  '9',  '60,0',  '350,0', '59,94',  '56,55', '354,99', '0',     'ja',   'ja',   0.3),
    (2,  '10', '70,0',  '400,0', '69,96',  '55,14', '403,94', '0',     'ja',   'ja',   0.3),
    (2,  '11', '50,0',  '50,0',  '50,01',  '9,69',  '50,73',  '50,0',  'ja',   'ja',   0.2),
    (2,  '12', '90,0',  '100,0', '89,98',  '10,74', '101,22', '90,2',  'ja',   'ja',   0.2),
    (3,  '1',  '50,0',  '25,0',  '49,97',  '4,71',  '24,66',  '0',     'ja',   'ja',   1.2),
    (3,  '2',  '50,0',  '50,0',  '49,96',  '9,40',  '49,19',  '0',     'ja',   'ja',   0.6),
    (3,  '3',  '50,0',  '75,0',  '50,00',  '14,17', '74,19',  '0',     'ja',   'ja',   0.4),
    (3,  '4',  '60,0',  '100,0', '59,99',  '15,65', '98,34',  '0',     'ja',   'ja',   0.3),
    (3,  '5',  '60,0',  '150,0', '60,00',  '23,50', '147,66', '0',     'ja',   'ja',   0.3),
    (3,  '6',  '50,0',  '50,0',  '50,05',  '9,39',  '49,23',  '50',    'ja',   'ja',   0.2),
    (3,  '7',  '60,0',  '50,0',  '60,03',  '7,87',  '49,50',  '60',    'ja',   'ja',   0.2),
    (4,  '1',  '50,0',  '25,0',  '50,01',  '4,66',  '24,39',  '0',     'ja',   'ja',   1.2),
    (4,  '2',  '50,0',  '50,0',  '50,03',  '9,39',  '49,17',  '0',     'ja',   'ja',   0.6),
    (4,  '3',  '50,0',  '75,0',  '50,07',  '14,00', '73,39',  '0',     'ja',   'ja',   0.4),
    (4,  '4',  '60,0',  '100,0', '59,99',  '15,53', '97,54',  '0',     'ja',   'ja',   0.3),
    (4,  '5',  '60,0',  '150,0', '60,02',  '23,43', '147,25', '0',     'ja',   'ja',   0.3),
    (4,  '6',  '50,0',  '50,0',  '49,99',  '9,43',  '49,34',  '50,4',  'ja',   'ja',   0.2),
    (4,  '7',  '60,0',  '50,0',  '59,97',  '7,78',  '48,89',  '60',    'ja',   'ja',   0.2),
    (4,  'FR', '65,0',  '120,0', '65,02',  '17,28', '117,66', '0',     'ja',   'ja',   0.3),
    (4,  'FR', '75,0',  '180,0', '74,94',  '22,63', '177,63', '75,4',  'ja',   'ja',   0.2),
    (5,  '1',  '50,0',  '25,0',  '50,05',  '4,77',  '25,02',  '0',     'ja',   'ja',   1.2),
    (5,  '2',  '50,0',  '50,0',  '49,96',  '9,64',  '50,46',  '0',     'ja',   'ja',   0.6),
    (5,  '3',  '50,0',  '75,0',  '50,02',  '14,35', '75,18',  '0',     'ja',   'ja',   0.4),
    (5,  '4',  '60,0',  '100,0', '59,99',  '16,01', '100,57', '0',     'ja',   'ja',   0.3),
    (5,  '5',  '60,0',  '150,0', '60,01',  '24,00', '150,85', '0',     'ja',   'ja',   0.3),
    (5,  '6',  '50,0',  '50,0',  '50,01',  '9,61',  '50,31',  '50',    'ja',   'ja',   0.2),
    (5,  '7',  '60,0',  '50,0',  '60,01',  '8,03',  '50,45',  '60,1',  'ja',   'ja',   0.2),
    (6,  '1',  '60,0',  '50,0',  '60,03',  '7,61',  '47,82',  '0',     'ja',   'ja',   0.6),
    (6,  '2',  '60,0',  '100,0', '59,99',  '15,12', '94,99',  '0',     'ja',   'ja',   0.3),
    (6,  '3',  '60,0',  '150,0', '59,97',  '22,80', '143,19', '0',     'ja',   'ja',   0.3),
    (6,  '4',  '70,0',  '200,0', '69,97',  '26,12', '191,36', '0',     'ja',   'ja',   0.3),
    (6,  '5',  '70,0',  '250,0', '69,99',  '32,41', '237,58', '0',     'ja',   'ja',   0.3),
    (6,  '6',  '80,0',  '300,0', '80,06',  '34,15', '286,33', '0',     'ja',   'ja',   0.3),
    (6,  '7',  '90,0',  '400,0', '90,00',  '40,56', '382,26', '0',     'ja',   'ja',   0.3),
    (6,  '8',  '60,0',  '100,0', '60,03',  '15,22', '95,69',  '61',    'ja',   'ja',   0.2),
    (6,  '9',  '80,0',  '100,0', '79,96',  '11,36', '95,13',  '81',    'ja',   'ja',   0.2),
    (6,  '10', '100,0', '100,0', '100,02', '9,11',  '95,46',  '101,2', 'ja',   'ja',   0.2),
    (7,  '1',  '60,0',  '50,0',  '60,02',  '8,65',  '54,34',  '0',     'ja',   'ja',   0.6),
    (7,  '2',  '60,0',  '100,0', '60,01',  '17,37', '109,17', '0',     'ja',   'ja',   0.3),
    (7,  '3',  '70,0',  '150,0', '70,04',  '22,35', '163,94', '0',     'ja',   'ja',   0.3),
    (7,  '4',  '80,0',  '200,0', '80,04',  '25,92', '217,22', '0',     'ja',   'ja',   0.3),
    (7,  '5',  '60,0',  '100,0', '60,00',  '17,34', '108,98', '59,1',  'ja',   'ja',   0.2),
    (7,  '6',  '90,0',  '100,0', '90,01',  '11,55', '108,88', '89',    'ja',   'ja',   0.2),
    (8,  '1',  '60.0',  '50.0',  '60.01',  '7.73',  '48.60',  '0',     'yes',  'yes',  0.6),
    (8,  '2',  '60.0',  '100.0', '60.07',  '15.40', '96.88',  '0',     'yes',  'yes',  0.3),
    (8,  '3',  '70.0',  '150.0', '70.00',  '19.86', '145.61', '0',     'yes',  'yes',  0.3),
    (8,  '4',  '80.0',  '200.0', '80.01',  '23.18', '194.21', '0',     'yes',  'yes',  0.3),
    (8,  '5',  '60.0',  '100.0', '60.05',  '15.37', '96.65',  '62',    'yes',  'yes',  0.2),
    (8,  '6',  '90.0',  '100.0', '90.02',  '10.24', '96.55',  '92',    'yes',  'yes',  0.2),
    (9,  '1',  '60,0',  '100,0', '60,09',  '15,84', '99,69',  '0',     'ja',   'ja',   0.3),
    (9,  '2',  '80,0',  '0,0',   '79,96',  '0,27',  '2,26',   '80',    'ja',   'ja',   0.2),
    (10, '1',  '60,0',  '25,0',  '60,06',  '3,78',  '23,80',  '0',     'ja',   'ja',   1.2),
    (10, '2',  '60,0',  '50,0',  '60,00',  '7,60',  '47,77',  '0',     'ja',   'ja',   0.6),
    (10, '3',  '60,0',  '75,0',  '60,00',  '11,42', '71,73',  '0',     'ja',   'ja',   0.4),
    (10, '4',  '60,0',  '100,0', '59,97',  '15,21', '95,51',  '0',     'ja',   'ja',   0.3),
    (10, '5',  '60,0',  '150,0', '60,05',  '22,73', '142,96', '0',     'ja',   'ja',   0.3),
    (10, '6',  '60,0',  '200,0', '59,95',  '30,50', '191,49', '0',     'ja',   'ja',   0.3),
    (10, '7',  '60,0',  '250,0', '60,03',  '38,12', '239,62', '0',     'ja',   'ja',   0.3),
    (10, '8',  '60,0',  '300,0', '59,99',  '45,63', '286,64', '0',     'ja',   'ja',   0.3),
    (10, '9',  '60,0',  '350,0', '60,00',  '53,18', '334,17', '0',     'ja',   'ja',   0.3),
    (10, '10', '70,0',  '400,0', '70,05',  '52,10', '382,21', '0',     'ja',   'ja',   0.3),
    (10, '11', '50,0',  '50,0',  '50,00',  '9,11',  '47,69',  '50',    'ja',   'ja',   0.2),
    (10, '12', '90,0',  '100,0', '89,99',  '10,13', '95,43',  '91',    'ja',   'ja',   0.2),
    (11, '1',  '60,0',  '25,0',  '60,00',  '3,93',  '24,69',  '0',     'ja',   'ja',   1.2),
    (11, '2',  '60,0',  '50,0',  '60,05',  '7,92',  '49,82',  '0',     'ja',   'ja',   0.6),
    (11, '3',  '60,0',  '75,0',  '60,04',  '11,83', '74,40',  '0',     'ja',   'ja',   0.4),
    (11, '4',  '60,0',  '100,0', '60,01',  '15,74', '98,92',  '0',     'ja',   'ja',   0.3),
    (11, '5',  '60,0',  '150,0', '59,98',  '23,77', '149,29', '0',     'ja',   'ja',   0.3),
    (11, '6',  '60,0',  '200,0', '60,02',  '31,50', '197,98', '0',     'ja',   'ja',   0.3),
    (11, '7',  '60,0',  '250,0', '60,01',  '39,30', '246,98', '0',     'ja',   'ja',   0.3),
    (11, '8',  '60,0',  '300,0', '59,98',  '47,22', '296,61', '0',     'ja',   'ja',   0.3),
    (11, '9',  '60,0',  '350,0', '59,97',  '55,50', '348,52', '0',     'ja',   'ja',   0.3),
    (11, '10', '70,0',  '400,0', '70,03',  '53,93', '395,47', '0',     'ja',   'ja',   0.3),
    (11, '11', '50,0',  '50,0',  '50,03',  '9,44',  '49,44',  '50',    'ja',   'ja',   0.2),
    (11, '12', '90,0',  '100,0', '90,03',  '10,53', '99,23',  '90',    'ja',   'ja',   0.2),
    (11, 'FR', '65,0',  '120,0', '64,99',  '17,48', '118,94', '0',     'ja',   'ja',   0.3),
    (11, 'FR', '75,0',  '180,0', '74,98',  '22,70', '178,23', '75',    'ja',   'ja',   0.2),
    (12, '1',  '60.0',  '50.0',  '59.99',  '7.17',  '45.06',  '0',     'yes',  '?',    0.6),
    (12, '2',  '60.0',  '100.0', '59.98',  '14.38', '90.33',  '0',     'yes',  'yes',  0.3),
    (12, '3',  '70.0',  '150.0', '69.95',  '18.40', '134.78', '0',     'no',   '?',    0.3),
    (12, '4',  '80.0',  '200.0', '80.04',  '21.50', '180.23', '0',     'yes',  '?',    0.3),
    (12, '5',  '60.0',  '100.0', '60.00',  '14.43', '90.64',  '62',    'yes',  'yes',  0.2),
    (12, '6',  '90.0',  '100.0', '89.99',  '9.58',  '90.28',  '92',    'yes',  'yes',  0.2),
    (12, 'FR', '65.0',  '120.0', '65.04',  '15.87', '108.07', '0',     'yes',  '?',    0.3),
    (12, 'FR', '75.0',  '180.0', '75.02',  '20.68', '162.48', '77',    'yes',  'yes',  0.2),
    (13, '1',  '50,0',  '25,0',  '49,99',  '4,83',  '25,31',  '0',     'ja',   'ja',   1.2),
    (13, '2',  '50,0',  '50,0',  '49,98',  '9,71',  '50,81',  '0',     'ja',   'ja',   0.6),
    (13, '3',  '50,0',  '75,0',  '49,99',  '14,59', '76,37',  '0',     'ja',   'ja',   0.4),
    (13, '4',  '60,0',  '100,0', '59,99',  '16,20', '101,78', '0',     'ja',   'ja',   0.3),
    (13, '5',  '60,0',  '150,0', '60,10',  '24,28', '152,81', '0',     'ja',   'ja',   0.3),
    (13, '6',  '50,0',  '50,0',  '50,00',  '9,67',  '50,64',  '50',    'ja',   'ja',   0.2),
    (13, '7',  '60,0',  '50,0',  '60,01',  '8,11',  '50,99',  '60,4',  'ja',   'ja',   0.2),
    (14, '1',  '60,0',  '50,0',  '60,02',  '7,80',  '49,05',  '0',     'ja',   'ja',   0.6),
    (14, '2',  '60,0',  '100,0', '60,01',  '15,50', '97,42',  '0',     'ja',   'ja',   0.3),
    (14, '3',  '60,0',  '150,0', '59,97',  '23,35', '146,62', '0',     'ja',   'ja',   0.3),
    (14, '4',  '70,0',  '200,0', '69,97',  '26,62', '195,05', '0',     'ja',   'ja',   0.3),
    (14, '5',  '70,0',  '250,0', '70,00',  '33,21', '243,44', '0',     'ja',   'ja',   0.3),
    (14, '6',  '80,0',  '300,0', '79,95',  '34,87', '291,96', '0',     'ja',   'ja',   0.3),
    (14, '7',  '90,0',  '400,0', '90,05',  '41,35', '389,90', '0',     'ja',   'ja',   0.3),
    (14, '8',  '60,0',  '100,0', '60,03',  '15,55', '97,77',  '59',    'ja',   'ja',   0.2),
    (14, '9',  '80,0',  '100,0', '79,99',  '11,62', '97,34',  '79',    'ja',   'ja',   0.2),
    (14, '10', '100,0', '100,0', '100,02', '9,33',  '97,71',  '99',    'ja',   'ja',   0.2),
    (15, '1',  '60,0',  '50,0',  '60,00',  '7,16',  '44,98',  '0',     'nein', '?',    0.6),
    (15, '2',  '60,0',  '100,0', '59,95',  '14,35', '90,06',  '0',     'ja',   '?',    0.3),
    (15, '3',  '60,0',  '150,0', '60,00',  '21,44', '134,72', '0',     'nein', '?',    0.3),
    (15, '4',  '70,0',  '200,0', '69,97',  '24,73', '181,22', '0',     'ja',   'ja',   0.3),
    (15, '5',  '70,0',  '250,0', '70,01',  '30,76', '225,55', '0',     'ja',   '?',    0.3),
    (15, '6',  '80,0',  '300,0', '80,00',  '32,21', '269,80', '0',     'nein', '?',    0.3),
    (15, '7',  '90,0',  '400,0', '89,99',  '38,03', '358,37', '0',     'nein', 'nein', 0.3),
    (15, '8',  '60,0',  '100,0', '60,04',  '14,32', '90,04',  '55,0',  'nein', '?',    0.2),
    (15, '9',  '80,0',  '100,0', '80,00',  '10,75', '90,03',  '75',    'ja',   '?',    0.2),
    (15, '10', '100,0', '100,0', '100,02', '8,52',  '89,20',  '95',    'nein', '?',    0.2);

-- Saved from nine o'clock on, three minutes apart.
UPDATE Messwerte
SET MDat = (SELECT strftime('%Y-%m-%d %H:%M:%f', K.ErstellDatum, '+9 hours',
                            (3 * (SELECT COUNT(*) FROM Messwerte V
                                  WHERE V.ProtokollID = Messwerte.ProtokollID
                                    AND V.rowid < Messwerte.rowid)) || ' minutes')
            FROM Protokoll K
            WHERE K.ProtokollID = Messwerte.ProtokollID);

INSERT INTO Blutdruck
    (ProtokollID, Normalanzeige, auf, ab, MU)
VALUES
    (3,  0,   '0',   '0',   '0,8'),
    (3,  50,  '51',  '51',  '0,8'),
    (3,  100, '100', '102', '0,8'),
    (3,  150, '151', '151', '0,8'),
    (3,  200, '201', '202', '0,8'),
    (3,  250, '252', '251', '0,8'),
    (3,  300, '300', '302', '0,8'),
    (9,  0,   '0',   '0',   '0,8'),
    (9,  50,  '51',  '52',  '0,8'),
    (9,  100, '101', '101', '0,8'),
    (9,  150, '151', '151', '0,8'),
    (9,  200, '201', '202', '0,8'),
    (9,  250, '251', '252', '0,8'),
    (9,  300, '300', '301', '0,8'),
    (11, 0,   '0',   '0',   '0,8'),
    (11, 50,  '52',  '52',  '0,8'),
    (11, 100, '101', '101', '0,8'),
    (11, 150, '151', '151', '0,8'),
    (11, 200, '202', '201', '0,8'),
    (11, 250, '251', '252', '0,8'),
    (11, 300, '301', '301', '0,8');

UPDATE Blutdruck
SET NormalNr_BD = 'PN-0031',
    KennNr_BD = 'M 2207',
    kalibriertVon_BD = 'Kalibrierlabor Lirrstadt',
    kalibriertBis_BD = (SELECT strftime('%d.%m.%Y', K.ErstellDatum, '+9 months')
                        FROM Protokoll K
                        WHERE K.ProtokollID = Blutdruck.ProtokollID),
    kalScheinNr_BD = 'KL-D-3315';

INSERT INTO SecControl
    (ProtokollID, SchutzleiterR, IsolationsR, GeräteableitI,
     SchutzleiterR_GW, IsolationsR_GW, GeräteableitI_GW,
     SchutzleiterR_MU, IsolationsR_MU, GeräteableitI_MU)
VALUES
    (3,  '0,13', '136', '0,056', '0,3', '2', '0,5', '0,01', '2', '0,005'),
    (10, '0,09', '153', '0,079', '0,3', '2', '0,5', '0,01', '2', '0,005'),
    (11, '0,09', '67',  '0,058', '0,3', '2', '0,5', '0,01', '2', '0,005'),
    (13, '0,13', '73',  '0,080', '0,3', '2', '0,5', '0,01', '2', '0,005');

UPDATE SecControl
SET NormalNr_STK = 'SN-0007',
    KennNr_STK = 'ET 118',
    kalibriertVon_STK = 'Kalibrierlabor Lirrstadt',
    kalibriertBis_STK = (SELECT strftime('%d.%m.%Y', K.ErstellDatum, '+5 months')
                        FROM Protokoll K
                        WHERE K.ProtokollID = SecControl.ProtokollID),
    KalScheinNr_STK = 'KL-E-1402',
    Messverfahren_STK = 'Ersatzmessung';


-- Working protocols ----------------------------------------------------------------------------

-- 20 has sheets only and therefore no direction or specification, 21 has nothing behind it yet.
WITH Kopf (ProtokollID, Protokollname, Prüfername, GerätID, Drehrichtung, PrüfungsArt, NK_ID,
           Tage) AS (VALUES
    (16, 'Zweitkalibrierung',  'M. Berger',    2,  1,    1,    2, 9),
    (17, 'Institut 1',         'S. Lindqvist', 23, 1,    1,    2, 7),
    (18, 'Institut-Rad',       'S. Lindqvist', 25, 1,    1,    2, 4),
    (19, 'Cardiac Unit',       'J. Whitcombe', 26, 2,    1,    2, 2),
    (20, 'Blutdruck Talbrück', 'M. Berger',    6,  NULL, NULL, 2, 1),
    (21, 'Nachmessung',        'M. Berger',    4,  1,    1,    2, 0)
)
INSERT INTO Protokoll_temp
    (ProtokollID, Protokollname, Prüfername, GerätID, KundenID, Drehrichtung, PrüfungsArt, NK_ID,
     Messverfahren, ErstellDatum)
SELECT K.ProtokollID, K.Protokollname, K.Prüfername, K.GerätID, E.KundenID, K.Drehrichtung,
       K.PrüfungsArt, K.NK_ID, T.Messverfahren, date('now', 'localtime', -K.Tage || ' days')
FROM Kopf K
JOIN Ergometer E ON E.GerätID = K.GerätID
LEFT JOIN Toleranzen T ON T.ID = K.PrüfungsArt;

INSERT INTO Messwerte_temp
    (ProtokollID, Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, Ist_D_torvena, Ist_P_torvena,
     Ist_n_ergom, MU_ohne, MU_mit, MU_Proz)
VALUES
    (16, '1',  '60,0', '25,0',  '59,97', '3,75',  '23,58',  '0',    'ja',   'ja',  1.2),
    (16, '2',  '60,0', '50,0',  '59,96', '7,59',  '47,67',  '0',    'ja',   'ja',  0.6),
    (16, '3',  '60,0', '75,0',  '60,00', '11,35', '71,33',  '0',    'ja',   '?',   0.4),
    (16, '4',  '60,0', '100,0', '59,94', '15,12', '94,89',  '0',    'nein', '?',   0.3),
    (16, '5',  '60,0', '150,0', '59,98', '22,83', '143,40', '0',    'ja',   'ja',  0.3),
    (16, '6',  '60,0', '200,0', '59,99', '30,45', '191,29', '0',    'ja',   'ja',  0.3),
    (16, '7',  '60,0', '250,0', '60,03', '37,87', '238,08', '0',    'ja',   '?',   0.3),
    (16, '8',  '60,0', '300,0', '60,06', '45,43', '285,74', '0',    'ja',   '?',   0.3),
    (16, '9',  '60,0', '350,0', '60,04', '53,22', '334,60', '0',    'ja',   'ja',  0.3),
    (16, '10', '70,0', '400,0', '69,97', '52,08', '381,60', '0',    'ja',   'ja',  0.3),
    (16, '11', '50,0', '50,0',  '49,99', '9,08',  '47,55',  '51',   'ja',   'ja',  0.2),
    (16, '12', '90,0', '100,0', '90,05', '10,06', '94,82',  '90,3', 'ja',   'ja',  0.2),
    (17, '1',  '60,0', '100,0', '59,98', '15,98', '100,38', '0',    'ja',   'ja',  0.3),
    (17, '2',  '80,0', '0,0',   '80,02', '0,27',  '2,30',   '80',   'ja',   'ja',  0.2),
    (18, '1',  '50,0', '25,0',  '49,98', '4,72',  '24,71',  '0',    'ja',   'ja',  1.2),
    (18, '2',  '50,0', '50,0',  '50,02', '9,46',  '49,57',  '0',    'ja',   'ja',  0.6),
    (18, '3',  '50,0', '75,0',  '50,05', '14,13', '74,04',  '0',    'ja',   'ja',  0.4),
    (18, '4',  '60,0', '100,0', '59,98', '15,82', '99,37',  '0',    'ja',   'ja',  0.3),
    (18, '5',  '60,0', '150,0', '59,98', '23,59', '148,19', '0',    'ja',   'ja',  0.3),
    (18, '6',  '50,0', '50,0',  '50,01', '9,38',  '49,14',  '51,8', 'ja',   'ja',  0.2),
    (18, '7',  '60,0', '50,0',  '60,03', '7,84',  '49,26',  '62',   'ja',   '?',   0.2),
    (18, 'FR', '65,0', '120,0', '65,03', '17,36', '118,25', '0',    'ja',   'ja',  0.3),
    (18, 'FR', '75,0', '180,0', '74,94', '22,57', '177,12', '77',   'nein', '?',   0.2),
    (19, '1',  '60.0', '25.0',  '59.99', '3.97',  '24.91',  '0',    'yes',  'yes', 1.2),
    (19, '2',  '60.0', '50.0',  '60.01', '7.93',  '49.81',  '0',    'yes',  'yes', 0.6),
    (19, '3',  '60.0', '75.0',  '60.02', '11.82', '74.32',  '0',    'yes',  'yes', 0.4),
    (19, '4',  '60.0', '100.0', '60.07', '15.75', '99.08',  '0',    'yes',  'yes', 0.3),
    (19, '5',  '60.0', '150.0', '60.00', '23.80', '149.53', '0',    'yes',  'yes', 0.3),
    (19, '6',  '60.0', '200.0', '60.01', '31.48', '197.85', '0',    'yes',  'yes', 0.3),
    (19, '7',  '60.0', '250.0', '60.00', '39.35', '247.27', '0',    'yes',  'yes', 0.3),
    (19, '8',  '60.0', '300.0', '60.02', '47.38', '297.77', '0',    'yes',  'yes', 0.3),
    (19, '9',  '60.0', '350.0', '59.93', '55.23', '346.59', '0',    'yes',  'yes', 0.3),
    (19, '10', '70.0', '400.0', '70.00', '54.29', '397.99', '0',    'yes',  'yes', 0.3),
    (19, '11', '50.0', '50.0',  '49.99', '9.42',  '49.33',  '50',   'yes',  'yes', 0.2),
    (19, '12', '90.0', '100.0', '89.96', '10.57', '99.58',  '90.3', 'yes',  'yes', 0.2);

-- Saved from nine o'clock on, three minutes apart.
UPDATE Messwerte_temp
SET MDat = (SELECT strftime('%Y-%m-%d %H:%M:%f', K.ErstellDatum, '+9 hours',
                            (3 * (SELECT COUNT(*) FROM Messwerte_temp V
                                  WHERE V.ProtokollID = Messwerte_temp.ProtokollID
                                    AND V.rowid < Messwerte_temp.rowid)) || ' minutes')
            FROM Protokoll_temp K
            WHERE K.ProtokollID = Messwerte_temp.ProtokollID);

INSERT INTO Blutdruck_temp
    (ProtokollID, Normalanzeige, auf, ab, MU)
VALUES
    (17, 0,   '0',   '0',   '0,8'),
    (17, 50,  '50',  '51',  '0,8'),
    (17, 100, '100', '100', '0,8'),
    (17, 150, '150', '151', '0,8'),
    (17, 200, '201', '201', '0,8'),
    (17, 250, '249', '251', '0,8'),
    (17, 300, '301', '301', '0,8'),
    (20, 0,   '0',   '0',   '0,8'),
    (20, 50,  '50',  '51',  '0,8'),
    (20, 100, '100', '101', '0,8'),
    (20, 150, '150', '151', '0,8'),
    (20, 200, '200', '200', '0,8'),
    (20, 250, '251', '251', '0,8'),
    (20, 300, '299', '300', '0,8');

UPDATE Blutdruck_temp
SET NormalNr_BD = 'PN-0031',
    KennNr_BD = 'M 2207',
    kalibriertVon_BD = 'Kalibrierlabor Lirrstadt',
    kalibriertBis_BD = (SELECT strftime('%d.%m.%Y', K.ErstellDatum, '+9 months')
                        FROM Protokoll_temp K
                        WHERE K.ProtokollID = Blutdruck_temp.ProtokollID),
    kalScheinNr_BD = 'KL-D-3315';

INSERT INTO SecControl_temp
    (ProtokollID, SchutzleiterR, IsolationsR, GeräteableitI,
     SchutzleiterR_GW, IsolationsR_GW, GeräteableitI_GW,
     SchutzleiterR_MU, IsolationsR_MU, GeräteableitI_MU)
VALUES
    (18, '0,11', '75', '0,060', '0,3', '2', '0,5', '0,01', '2', '0,005'),
    (20, '0,13', '70', '0,032', '0,3', '2', '0,5', '0,01', '2', '0,005');

UPDATE SecControl_temp
SET NormalNr_STK = 'SN-0007',
    KennNr_STK = 'ET 118',
    kalibriertVon_STK = 'Kalibrierlabor Lirrstadt',
    kalibriertBis_STK = (SELECT strftime('%d.%m.%Y', K.ErstellDatum, '+5 months')
                        FROM Protokoll_temp K
                        WHERE K.ProtokollID = SecControl_temp.ProtokollID),
    KalScheinNr_STK = 'KL-E-1402',
    Messverfahren_STK = 'Ersatzmessung';


-- Final tests ----------------------------------------------------------------------------------

UPDATE System SET Endprüfung = -1;

INSERT INTO EP
    (EP_ID, SerienNr, Prüfer, kalibriertBis, Prüfdatum, Messkopf, Kunde, Gerätetyp,
     GeräteableitI, SchutzleiterR, IsolationsR,
     auf0, auf50, auf100, auf150, auf200, auf250, auf300, Ablassrate,
     Rezept, Schritte, Drehrichtung, NK_ID, Begonnen, Dauer, Vollständig)
SELECT column1, column2, column3,
       CASE strftime('%m', 'now', 'localtime', column4)
           WHEN '01' THEN 'Januar' WHEN '02' THEN 'Februar' WHEN '03' THEN 'März'
           WHEN '04' THEN 'April' WHEN '05' THEN 'Mai' WHEN '06' THEN 'Juni'
           WHEN '07' THEN 'Juli' WHEN '08' THEN 'August' WHEN '09' THEN 'September'
           WHEN '10' THEN 'Oktober' WHEN '11' THEN 'November' ELSE 'Dezember' END || ' ' ||
           (strftime('%Y', 'now', 'localtime', column4) + 2),
       strftime('%d.%m.%Y', 'now', 'localtime', column4),
       column5, column6, column7, column8, column9, column10,
       column11, column12, column13, column14, column15, column16, column17, column18,
       column19, 4, column20, 2,
       datetime('now', 'localtime', column4, 'start of day', column21), column22, -1
FROM (VALUES
    (1, 'KF-20417', 'M. Berger', '-9 days', 'MK-118', 'Klinikum Ährenfeld', 'KardioFit 500',
     '42', '0.12', '75', '0', '50', '100', '151', '201', '250', '300', '2.9',
     'Endprüfung KardioFit', 1, '+10 hours', 252),
    (2, 'KF-20418', 'S. Lindqvist', '-8 days', NULL, 'Herzzentrum Talbrück', 'KardioFit 500',
     '38', '0.14', '70', NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL,
     'Endprüfung KardioFit', 2, '+14 hours', 249));

INSERT INTO EP_Messwerte
    (ProtokollID, Prüfschritt, Soll_n, Soll_P, Ist_n_torvena, Ist_D_torvena, Ist_P_torvena,
     Ist_n_ergom, Toleranz, Klasse, ZulAbwP, ZulAbwN)
VALUES
    (1, '1', '60,0', '50,0',  '60,02', '8,01',  '50,31',  ' 60', 'OK', 'medizinische Geräte', 3, 2),
    (1, '2', '60,0', '100,0', '59,98', '15,84', '99,44',  ' 60', 'OK', 'medizinische Geräte', 5, 2),
    (1, '3', '60,0', '200,0', '60,01', '32,10', '201,62', ' 60', 'OK', 'medizinische Geräte', 10, 2),
    (1, '4', '80,0', '300,0', '79,96', '35,61', '298,04', ' 81', 'OK', 'medizinische Geräte', 15, 2),
    (2, '1', '60,0', '50,0',  '60,00', '7,87',  '49,42',  ' 60', 'OK', 'medizinische Geräte', 3, 2),
    (2, '2', '60,0', '100,0', '60,03', '16,62', '104,42', ' 60', 'OK', 'medizinische Geräte', 5, 2),
    (2, '3', '60,0', '200,0', '59,97', '34,13', '214,23', ' 60', 'Außer Toleranz',
     'medizinische Geräte', 10, 2),
    (2, '4', '80,0', '300,0', '80,02', '37,39', '313,17', ' 80', 'OK', 'medizinische Geräte', 15, 2);
