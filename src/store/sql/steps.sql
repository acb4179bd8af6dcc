-- Run for each table of steps, marked {steps}.

-- The three tables of steps have the same columns: both recipe editors work on the one copy in
-- ÄndRez_temp, where the key of a final-test recipe has a minus, so that what one editor has left
-- there never meets the other. Rezepte leaves the last two columns empty.
--
-- No unique key: renumbering moves step by step, and a step may stand twice for a moment.
CREATE TABLE {steps} (
    RezeptID        INTEGER,
    Prüfschritt     TEXT COLLATE NOCASE,    -- number from 1
    Drehzahl        TEXT COLLATE NOCASE,    -- 1/min
    Leistung        NUMERIC,                -- W
    Prüfart         TEXT COLLATE NOCASE,    -- '1' power, '2' speed measurement
    SSCode          TEXT COLLATE NOCASE,    -- load line to the ergometer, e.g. W150[13]
    MessSchritte    TEXT COLLATE NOCASE     -- number of six-round measurements
);
CREATE INDEX {steps}Schritt ON {steps} (RezeptID, Prüfschritt);
