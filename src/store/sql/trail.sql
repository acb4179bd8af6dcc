-- What appends to the table Nachweis and keeps it as it is. It is laid by the program behind the tables, and
-- their own triggers after it. Satz, Kettenglied and Person are functions of the program: others can
-- read a database with a trail, but not write to it.

CREATE VIEW NachweisNeu AS SELECT Tabelle, Vorgang, Schlüssel, Alt, Neu FROM Nachweis;

-- A row that is written as it was is no change. The number comes from the counter, so that the links
-- of a tail that was cut off are missed.
CREATE TRIGGER NachweisAnhängen INSTEAD OF INSERT ON NachweisNeu WHEN NEW.Alt IS NOT NEW.Neu
BEGIN
    INSERT INTO Nachweis
    SELECT Nr, Zeit, Wer, NEW.Tabelle, NEW.Vorgang, NEW.Schlüssel, NEW.Alt, NEW.Neu, Vorher,
           Kettenglied(Nr, Zeit, Wer, NEW.Tabelle, NEW.Vorgang, NEW.Schlüssel, NEW.Alt, NEW.Neu,
                       Vorher)
    FROM (SELECT MAX(IFNULL((SELECT seq FROM sqlite_sequence WHERE name = 'Nachweis'), 0),
                     IFNULL((SELECT MAX(Nr) FROM Nachweis), 0)) + 1 AS Nr,
                 strftime('%Y-%m-%dT%H:%M:%fZ', 'now') AS Zeit,
                 Person() AS Wer,
                 IFNULL((SELECT Kette FROM Nachweis ORDER BY Nr DESC LIMIT 1), '') AS Vorher);
END;

CREATE TRIGGER NachweisBleibt BEFORE UPDATE ON Nachweis
BEGIN
    SELECT RAISE(ABORT, 'Der Nachweis wird nicht geändert.');
END;
CREATE TRIGGER NachweisBesteht BEFORE DELETE ON Nachweis
BEGIN
    SELECT RAISE(ABORT, 'Der Nachweis wird nicht gelöscht.');
END;
