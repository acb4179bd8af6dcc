// The message boxes of the screens to the letter, one row a box: key, flags, titles and texts in
// both languages. %1, %2 take what a test names in brackets behind the key, "failure(1018)"; a "…"
// at the end stands for anything.
#pragma once

#include "windows/msgbox.h"

namespace support {

struct KnownBox {
    const char *key;
    int flags;
    const char *title, *titleEnglish, *german, *english;
};

namespace boxflags {
using namespace platform;
// clang-format off
inline constexpr KnownBox boxTexts[] = {
    {"broughtUp", Information, "Meldung", "Message", "Die Datenbank wurde auf den Stand dieses Programms gebracht.\rWie sie vorher war, liegt als torvena470_vor_…", "The database was brought up to date for this program.\rAs it was before, it lies beside it as torvena470_vor_…"},
    // update of the database
    {"noUpdateFile", Exclamation, "Achtung!", "Attention!", "Die ausgewählte Datenbank ist keine Update-Datenbank.\rDas Update kann nicht ausgeführt werden!", "The chosen database can not be used for updating the database.\rChoose another database (on the update disc)!"},
    {"restart?", OKCancel + Exclamation, "Achtung!", "Restart", "Bitte starten Sie das Programm neu, um die aktualisierte Datenbank zu aktivieren! ", "To activate the new database restart the program, please!"},
    {"otherUncertainties", Information, "Mitteilung!", "Attention!", "Die Messunsicherheiten der bisherigen Datenbank weichen von den ausgelieferten ab und wurden übernommen: %1", "The uncertainties of the database in use differ from the delivered ones and were taken over: %1"},
    {"updateLocked", Exclamation, "Datenbank-Update", "Database Update", "Das Update der Datenbank kann nicht ausgeführt werden. Bitte schließen Sie alle Datenbanken und klicken auf 'OK'.", "The update of the database can not be finished. Please close all open databases and push 'OK'."},
    {"update75", Critical, "Datenbank-Update", " Database Update", "Fehler 75 - Update konnte nicht ordnungsgemäß abgeschlossen werden. Bitte wenden Sie sich an die Hotline!", "Error 75 - The update could not be finished correctly. Please contact the hotline for help!"},
    {"updateAnyway?", YesNo + Exclamation + SecondButtonDefault, "Datenbank-Update", "Database Update", "Die neue Datenbank stimmt nicht mit der bisherigen überein:\r%1…", "The new database does not match the one in use:\r%1…"},
    {"updateFailure", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Mitteilung %1 -  %2 …", "ERROR %1 -  %2 …"},
    {"updateFailed", Critical, "Mitteilung!", "Attention!", "Fehler R_10 -  %1 …", "ERROR R_10 -  %1 …"},
    // reports
    {"noProtocols", Exclamation, "Meldung", "Message", "Es existieren keine Protokolle!", "There are no protocols!"},
    {"noSuchReport", Exclamation, "Eingabefehler", "Input Error", "Dieses Protokoll existiert nicht!", "This protocol does not exist!"},
    {"archive?", YesNo + Question, "Druck des Protokolls", "Printing The Protocol", "Kann das Protokoll archiviert werden?", "Is the protocol o.k.?"},
    {"deleteReport?", YesNo, "Protokoll %1 löschen", "Delete Protocol %1", "Wollen Sie dieses Protokoll wirklich löschen?", "Do you really want to delete the protocol?"},
    {"noFolder", Exclamation, "Achtung", "Attention", "Kein PDF-Ordner angegeben!\nBitte ändern Sie die Einstellungen!", "No folder selected!"},
    {"page1", Information, "Sichern", "Save", "Berichtsseite Deckblatt wird erstellt!", "'Cover Sheet' created!"},
    {"page2", Information, "Sichern", "Save", "Berichtsseite Messergebnisse wird erstellt!", "'Measuring Results' created!"},
    {"page3", Information, "Sichern", "Save", "Berichtsseite Blutdruck wird erstellt!", "'Blood Pressure' created!"},
    {"page4", Information, "Sichern", "Save", "Berichtsseite STK wird erstellt!", "'EST' created!"},
    {"printerGone", Critical, "Meldung", "PDF printer", "Bisheriger PDF-Drucker wurde entfernt! - Gibt es nicht mehr.", "PDF printer has been removed or is not available anymore."},
    // failures
    {"failure", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1 - …", "ERROR %1 - …"},
    {"failureAt", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1- …", "ERROR %1- …"},
    {"failed", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1 -  %2 …", "ERROR %1 -  %2 …"},
    {"noRecord", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1 -  3021 Kein aktueller Datensatz.", "ERROR %1 -  3021 No current record."},
    {"noNumber", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1 -  13 Typen unverträglich: \"%2\" ist keine Zahl.", "ERROR %1 -  13 Type mismatch: \"%2\" is not a number."},
    {"noTable", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1 -  3078 Die Tabelle wurde nicht gefunden: no such table: %2", "ERROR %1 -  3078 Table not found: no such table: %2"},
    {"locked", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1 -  3045 Die Datenbank ist von einem anderen Programm gesperrt. Bitte schließen Sie es.", "ERROR %1 -  3045 The database is locked by another program. Please close it."},
    {"notOpen", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1 -  3420 Die Datenbank ist nicht geöffnet.", "ERROR %1 -  3420 The database is not open."},
    {"unreadRow", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1 - ( 3021) Kein aktueller Datensatz.", "ERROR %1 - ( 3021) No current record."},
    {"twoSpecifications", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1 -  3021 Diese Spezifikation gibt es mehrmals.", "ERROR %1 -  3021 There are several specifications of this name."},
    {"zeroPower", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler 3018 -  11 Division durch Null: Bei 0 W gibt es keine relative Messunsicherheit.", "ERROR 3018 -  11 Division by zero: at 0 W there is no relative uncertainty."},
    {"lineLost", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler 3002 -  8020 Die Verbindung ist unterbrochen. Bitte prüfen Sie Kabel und Anschluss.", "ERROR 3002 -  8020 The connection is lost. Please check cable and port."},
    {"portInUse", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler mI 2 -  8005 belegt", "ERROR mSI 2 -  8005 in use"},
    {"portRefused", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler mI 2 -  8012 geht nicht", "ERROR mSI 2 -  8012 not possible"},
    {"startFailed", Critical, "Fehler", "Error", "Fehler 1002- %1 …", "Error 1002- %1 …"},
    {"lineFailed", Critical, "Error", "Error", "Error %1- %2 …", "Error %1- %2 …"},
    {"requestFailed", Critical, "Error", "Error", "Fehler %1 -  %2 …", "ERROR %1 -  %2 …"},
    {"noPort", Critical, "Error", "Error", "Error 5007- 8002 fehlt", "Error 5007- 8002 missing"},
    {"uncaught", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler -  %1 %2", "ERROR -  %1 %2"},
    {"noHelp", Exclamation, "torvena", "torvena", "53 - Die Hilfe …", "53 - The help …"},
    {"noCalibration", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Es existieren keine Kalibrierdaten zu diesem Gerät in der verwendeten Datenbank!", "There are no calibration data for this device in the database!"},
    {"noEngine", Exclamation, "Achtung!", "Achtung!", "Der Motor ist noch nicht eingeschaltet oder \rdie Schnittstellenparameter gibt es nicht!\rBitte korrigieren Sie die Einstellungen!\rBitte entfernen Sie ggf. kurzzeitig das Kabel an der USB-Schnittstelle!", "The engine is not yet switched on or \rthe interface parameters do not exist!\rPlease correct the settings!\rPlease remove the cable at the USB interface for a short time!"},
    {"noSerialNumber", Exclamation, "Achtung!", "Achtung!", "Der Motor ist noch nicht eingeschaltet, \rdie Seriennummer konnte nicht ermittelt werden!\rBitte korrigieren Sie die Einstellungen!", "The engine is not yet switched on, \rthe serial number could not be determined!\rPlease correct the settings!"},
    // the desktop, the line and the motor
    {"end", YesNo + Question, "Programmende", "End Of Program", "Wollen Sie das Programm wirklich beenden?", "Do you really want to terminate the program?"},
    {"endAnyway", YesNo + Exclamation + SecondButtonDefault, "Programmende", "End Of Program", "Der Motor konnte nicht ausgeschaltet werden und dreht sich vielleicht noch.\rSoll das Programm trotzdem beendet werden?", "The motor could not be switched off and may still be turning.\rShall the program be terminated all the same?"},
    {"scaleEnd", Critical, "Eingabefehler", "Input Error", "Skalenende liegt außerhalb des gültigen Bereiches", "End of scale is outside the valid range."},
    {"scaleNumber", Critical, "Eingabefehler", "Input Error", "Skalenbeginn muss ein nummerischer Wert sein!", "Beginning of scale has to be a numeric value!"},
    {"login", Critical, "Anmeldung", "Registration", "Ungültige Anmeldung! Bitte versuchen Sie es noch einmal!", "Invalid registration! Please try it again!"},
    {"noDirection", Exclamation, "Meldung", "Message", "Sie haben keine Drehrichtung gewählt!\r\nDer Motor kann nicht eingeschaltet werden.", "Please select a direction of rotation for the motor!\r\nIt is not possible to switch the motor on."},
    {"directionFirst", Exclamation, "Vorbereiten der Messung", "Preparation For The Measurement", "Bitte wählen Sie zuerst eine Motor-Drehrichtung", "Please select a direction of rotation for the motor first!"},
    {"notRunIn", YesNo + Exclamation + SecondButtonDefault, "Messen starten", "Start The Measurement", "Das Gerät ist noch nicht eingelaufen!\rWollen sie trotzdem die Messung beginnen ?", "The unit under test has not completed the run-up yet!\rDo you still want to start the measurement?"},
    {"noController", Critical, "Fehlermeldung", "Error Message", "1 - Keine Kommunikation mit dem Controller möglich!", "Communication with the controller is not possible!"},
    {"noMode", Exclamation, "Meldung", "Message", "Keine Daten empfangen!", "No data received!"},
    {"noReset", Exclamation, "Meldung", "Message", "Kein Reset möglich!", "'Reset' is not possible!"},
    {"motorOn", Critical, "Motor ein", "Motor On", "Fehler", "Error"},
    {"motorOff", Critical, "Motor aus", "Motor Off", "Fehler", "Error"},
    {"motorOffAtEnd", Exclamation, "Motor aus", "Motor Off", "Fehler", "Error"},
    {"motorNotOn", Critical, "Motor ein", "Motor On", "Motor konnte nicht eingeschaltet werden", "It was not possible to switch the motor on."},
    {"noSettings", Exclamation, "Achtung!", "Attention!", "Die Schnittstellenparameter gibt es nicht. \rBitte korrigieren Sie die Einstellungen!", "The interface settings do not exist . \rPlease correct it!"},
    {"noSuchPort", Exclamation, "Achtung!", "!Attention!", "Diese Schnittstelle gibt es nicht!\rBitte ändern Sie die Einstellungen", "This interface does not exist!\rChange the settings, please!"},
    {"parameter", Critical, "Eingabefehler", "Attention", "Mindestens ein Parameter konnte nicht gespeichert werden!", "At least one parameter could not be saved!"},
    // the lever arm
    {"gravityText", Critical, "Eingabefehler", "Input Error", "Es muss ein nummerischer Wert sein!", "Input must be a numeric value!"},
    {"gravityRange", Critical, "Eingabefehler", "Input Error", "Wert liegt außerhalb des gültigen Bereiches", "Value is outside the valid range!"},
    {"wrongMode", Critical, "Fehler", "Error", "Falsche Betriebsart", "Wrong mode of operation!"},
    {"leverDirection", Exclamation, "Vorbereiten der Messung", "Preparations For The Measurement", "Bitte wählen Sie zuerst eine Motor-Drehrichtung", "Please select a direction of rotation for the motor first!"},
    {"noMoment", Critical, "Ungültige Messung", "Invalid Measurement", "Es konnten keine gültigen Messwerte ermittelt werden.\rDer Hebelarm ist falsch oder gar nicht montiert.", "It was not possible to ascertain valid measuring values.\rThe lever arm is either wrongly mounted or not mounted at all."},
    {"momentOut", Critical, "Grenzwertüberschreitung", "Out of range", "Der Messwert liegt außerhalb des zulässigen Grenzwertes.\rBitte überprüfen Sie die Montage des Hebelarms.\rBei wiederholter Überschreitung rufen Sie bitte den Service an!", "The measuring value is out of range.\rPlease check lever arm installation.\rIn case of repeated deviations please call the service!"},
    {"spreadOut", Critical, "Grenzwertüberschreitung", "Out of range", "Die Streubreite liegt außerhalb des zulässigen Grenzwertes.\rBitte überprüfen Sie die Montage des Hebelarms.\rBei wiederholter Überschreitung rufen Sie bitte den Service an!", "The spread is out of range.\rPlease check lever arm installation.\rIn case of repeated deviations please call the service!"},
    {"bothOut", Critical, "Grenzwertüberschreitung", "Out of range", "Die Streubreite liegt außerhalb des zulässigen Grenzwertes.\rDer Messwert liegt außerhalb des zulässigen Grenzwertes.\rBitte überprüfen Sie die Montage des Hebelarms.\rBei wiederholter Überschreitung rufen Sie bitte den Service an!", "The spread is out of range.\rThe measuring value is out of range.\rPlease check lever arm installation.\rIn case of repeated deviations please call the service!"},
    {"noStreamAnyMore", Exclamation, "Meldung", "Mesage", "Nach 15 Sek kein Empfang", "No reception after 15 sec"},
    {"leverFailed", Critical, "Fehler", "Error", "Fehler beim Kalibrieren! Bitte überprüfen Sie das Gerät.", "Error in calibrating! Please inspect the unit under test."},
    {"leverAborted", Critical, "Hebelarmkalibrierung", "Calibration", "Die Kalibrierung wurde abgebrochen", "Calibration has been discontinued"},
    {"correctionLoaded", Information, "Information", "Information", "Korreg geladen", "Correction loaded"},
    {"reallyDiscontinue", YesNo + Critical, "Statische Nullpunkt-Korrektur", "Static Zero-point Correction", "Achtung! Mit dem Messen kann nicht begonnen werden.\r\nWollen Sie wirklich abbrechen?", "Attention! Measurement cannot be started.\r\nDo you really want to discontinue?"},
    // customers, units
    {"unitNow", YesNo + Question, "Stammdaten auswählen", "Select Master Data", "Wollen Sie jetzt ein Gerät zu diesem Kunden auswählen?", "Do you want to select a unit for this customer now?"},
    {"recipeNow", YesNo + Question, "Stammdaten auswählen", "Select Master Data", "Wollen Sie jetzt ein Rezept auswählen?", "Do you want to select a recipe now?"},
    {"chooseCustomer", Exclamation, "Achtung!", "Attention", "Bitte wählen sie zuerst einen Kunden aus!", "Please select a customer first!"},
    {"changeCustomer", Exclamation, "Achtung!", "Attention", "Wählen sie zuerst einen Kunden aus!", "Please select a customer first!"},
    {"changeUnit", Exclamation, "Achtung!", "Attention!", "Wählen Sie zuerst ein Gerät aus!", "First, select a unit under test!"},
    {"searchText", Exclamation, "Suchen", "Search", "Bitte geben Sie den Suchtext im Feld Kundenname ein!", "To search, enter the text into the field 'Customer'!"},
    {"nothingFound", Information, "Suchen", "Search", "Es wurden keine Daten gefunden! ", "No data found! "},
    {"notHis", Exclamation, "Achtung!", "Attention!", "Kunde besitzt kein Gerät mit dieser ID-Nummer!", "The customer does not have a unit with this ID number!"},
    {"several", Exclamation, "Achtung!", "Attention!", "Es gibt mehrere Geräte diesen Typs!\rWählen sie zur genauen Bestimmung eine ID-Nummer aus!", "There are several units of this type!\rSelect an ID number in order to exactly define the unit!"},
    {"saved", Information, "Bestätigung", "MESSAGE", "Daten wurden gespeichert!", "Data have been saved!"},
    {"changed", Information, "Bestätigung", "MESSAGE", " Daten wurden geändert. ", " Data have been changed!"},
    {"customerDeleted", Information, "Bestätigung", "Confirmation", "Die Daten wurden gelöscht!", "Data have been deleted!"},
    {"unitDeleted", Information, "Bestätigung", "Confirmation", "Daten wurden gelöscht!", "Data have been deleted!"},
    {"noName", Exclamation, "Eingabefehler", "Error", " Keine Daten zum Speichern vorhanden! ", " No data to be saved! "},
    {"nameTaken", Exclamation, "Eingabefehler", "Error", " Dieser Kunde existiert schon!", " This customer is already existent!"},
    {"unitIncomplete", Exclamation, "Eingabefehler", "Error", "Bitte ergänzen Sie %1", "Input is incomplete! Please complete!"},
    {"identTaken", Exclamation, "MESSAGE!", "MESSAGE!", "Diese Identifikationsnummer ist bereits vergeben!", "This identification number has already been allocated!"},
    // specifications
    {"percent", Critical, "Eingabefehler!", "Input Error!", "Der angegebene Wert liegt außerhalb des gültigen Bereichs!", "Value is not within the permissible interval!"},
    {"watt", Critical, "Eingabfehler!", "Input Error", "Der angegebene Wert liegt außerhalb des gültigen Bereichs!", "Your indications are out of the permissible intervals!"},
    {"speed", Critical, "Eingabfehler!", "Input Error!", "Der angegebene Wert liegt außerhalb des gültigen Bereichs!", "The value is not within the permissible interval."},
    {"double", Critical, "Doppelter Eintrag", "Input Error", "Diese Bezeichnung für eine Toleranz gibt es bereits.\rBitte wählen Sie eine andere!", "This name for a tolerance already exists!\rPlease try again!"},
    {"incomplete", Exclamation, "Unvollständige Angaben", "Incomlete Data", "Die Daten sind unvollständig.\rBitte vervollständigen Sie ihre Angaben!", "Data are incomplete.\rPlease complete it!"},
    {"inserted", Information, "Meldung", "Information", "Eingaben wurden gespeichert!", "Input data have been changed!"},
    {"updated", Information, "Meldung", "Information", "Eingaben wurden gespeichert!", "Data have been saved!"},
    {"delete?", YesNo + Question, "Löschen", "Delete", "Sollen diese Daten jetzt gelöscht werden?", "Shall data be deleted?"},
    {"changed?", YesNo + Question, "Änderungen speichern?", "Save changes?", "Wollen Sie die Änderungen speichern?", "Do you want to save the changes?"},
    {"new?", YesNoCancel + Exclamation, "Daten speichern?", "Save data?", "Wollen Sie die Daten speichern?\rKlicken Sie auf Abbrechen, um ihre Eingabe zu beenden!", "Shall data be saved?\rPush 'Cancel' to determine your input!"},
    {"leaveEdit?", YesNo + Exclamation, "Änderungen speichern?", "Save changes?", "Sollen die Änderungen gespeichert werden?", "Shall changes be saved?"},
    {"leaveNew?", YesNo + Exclamation, "Daten speichern?", "Save data?", "Sollen die Daten vor Verlassen den Formulars gespeichert werden?", "Shall data be saved before exit?"},
    {"taken", Critical, "Meldung", "Information", "Diese Bezeichnung für eine Toleranz ist bereits vorhanden.", "That name for a tolerance already exists."},
    {"combination", Information, "Information", "Information", "Diese Kombination von Watt und Prozent ist bereits vorhanden. Sie heißt %1", "This combination of Watt and percent already exists: %1"},
    {"interval", Critical, "Eingabefehler", "Input Error", "Die Angaben befinden sich außerhalb des erlaubten Intervals!!\rBitte überprüfen Sie Ihre Eingabe.", "Your indications are out of the permissible intervals!!\rPlease check your entry."},
    // recipes
    {"noRecipeFound", Information, "Rezepte", "Recipes", "Es wurden keine Daten gefunden! ", "No data found! "},
    {"deleteRecipe", YesNo + Question, "Achtung!", "ATTENTION", "Wollen sie die Tabelle %1 wirklich löschen?", "Do you really want to delete the table '%1'?"},
    {"saveName", YesNo + Question, "Message!", "MESSAGE!", "Wollen sie diesen Rezeptnamen speichern?", "Do you want to save this recipe name?"},
    {"recipeTaken", Critical, "Message", "MESSAGE", " Diesen Rezeptnamen gibt es bereits!\rWählen Sie einen anderen!", "This recipe name is already existent!\rChoose another name!"},
    {"discard", YesNo + Question, "Message", "MESSAGE", "Rezept wurde nicht gespeichert!\rSollen die Daten verworfen werden? ", "Recipe has not been saved! \rShall data be discarded?"},
    {"saveSteps", YesNo + Question, "Message!", "Message!", "Änderungen in den Prüfschritten speichern?", "Do you want to save the changes in the test steps?"},
    {"newIncomplete", Critical, "Achtung!", "Attention!", "Die Angaben zum aktuellen Prüfschritt sind unvollständig!\rBitte ergänzen Sie%1!", "The informations about the actual test step are incomplete!"},
    {"editIncomplete", Exclamation, "Achtung!", "Attention!", "Die Angaben zum aktuellen Prüfschritt sind unvollständig!\rBitte ergänzen Sie%1!", "The information about the actual step are incomplete!\rPlease complete!"},
    {"newSpeedNumber", Critical, "Eingabefehler", "Input Error", "Drehzahl muss ein nummerischer Wert sein!", "Number of revolutions has to be a numeric value!"},
    {"newSpeedRange", Critical, "Eingabefehler", "Input Error", "Drehzahl liegt außerhalb des gültigen Bereiches.", "Number of revolution is outside the valid range."},
    {"newPowerNumber", Critical, "Eingabefehler", "Input Error", "Leistung muss ein nummerischer Wert sein!", "Power has to be a numeric value!"},
    {"newPowerRange", Critical, "Eingabefehler", "Input Error", "Leistung liegt außerhalb des gültigen Bereiches", "Power is outside the valid range!"},
    {"editSpeedNumber", Exclamation, "Eingabefehler", "Input Error", "Drehzahl muss ein nummerischer Wert sein!", "Number of revolutions must be a numerical value!"},
    {"editSpeedRange", Exclamation, "Eingabefehler", "Input Error", "Drehzahl liegt außerhalb des gültigen Bereiches!", "Number of revolutions is outside the valid range!"},
    {"editPowerNumber", Exclamation, "Eingabefehler!", "Input Error!", "Leistung muss ein nummerischer Wert sein!", "Power must be a numerical value!"},
    {"editPowerRange", Exclamation, "Eingabefehler!", "Input Error!", "Leistung liegt außerhalb des gültigen Bereiches!", "Power is outside the valid range!"},
    {"torque", OKOnly, "Drehmoment<=60Nm", "Torque<=60Nm", "Das zulässige Drehmoment ist überschritten!\r\nBitte geben Sie andere Werte ein!", "The permissible torque has been exeeded!\r\nPlease enter other values!"},
    // protocols
    {"noProtocol", Exclamation, "Meldung", "Message", "Dieses Protokoll gibt es nicht!", "This protocol does not exist!"},
    {"noSpecification", Exclamation, "Meldung", "Message", "Die Spezifikation dieses Rezepts wurde gelöscht, ohne sie kann nicht gemessen werden.\rBitte brechen Sie ab und wählen Sie ein anderes Rezept, oder legen Sie dieses mit einer Spezifikation neu an.", "The specification of this recipe has been deleted; without it nothing can be measured.\rPlease cancel and choose another recipe, or enter this one anew with a specification."},
    {"protocolFailed", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler %1-  %2 …", "ERROR %1-  %2 …"},
    {"saveSheet", YesNo + Question, "Protokoll speichern", "Save", "Soll das Protokoll gespeichert werden?", "Shall the protocol be saved?"},
    {"pressureSaved", Information, " Bestätigung", "Confirmation!", " Daten wurden gespeichert. ", "Data have been saved!"},
    {"pressureDeleted", Information, "Bestätigung!", "Confirmation!", "Daten wurden gelöscht!", "Data have been deleted!"},
    {"pressureStandard", Exclamation, "Message!", "Message!", "Um das Protokoll speichern zu können ist die Nummer des Normals erforderlich!", "In order to be able to save the protocol, the number of the working standard has to be provided!"},
    {"safetySaved", Information, " Bestätigung", " Confirmation", " Daten wurden gespeichert. ", " Data have been saved. "},
    {"safetyDeleted", Information, "Meldung", "Message", "Daten wurden gelöscht!", "Data have been deleted!"},
    {"safetyStandard", Exclamation, "Message!", "Message!", "Um das Protokoll speichern zu können, ist die Nummer des verwendeten Normals erforderlich!", "In order to be able to save the protocol, the number of the working standard has to be provided!"},
    {"safetyEmpty", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler 9903-  3075 Ein Blatt ohne Messwerte wird nicht gespeichert. Bitte tragen Sie die Messwerte ein, oder verlassen Sie das Fenster mit \"Abbrechen\".", "ERROR 9903-  3075 A sheet without measured values is not saved. Please enter the measured values, or leave the window with \"Cancel\"."},
    {"noDate", Exclamation, "Meldung", "Message", "\"%1\" ist kein Datum. Bitte prüfen Sie \"kalibriert bis\", bevor Sie speichern.", "\"%1\" is not a date. Please check \"Calibrated until\" before you save."},
    // calibration history
    {"referenceStays", Exclamation, "Achtung!", "Attention!", "Die Referenzdaten können nicht gelöscht werden!", "The reference data can not be deleted!"},
    {"deleteRecord?", OKCancel + Question + SecondButtonDefault, "Datensatz löschen", "Delete Record", "Wollen Sie den Datensatz wirklich löschen?", "Do you really want to delete this data record?"},
    {"notOpened", Information, "Export", "Export", "Die Tabelle wurde gespeichert. Hier gibt es kein Programm, das sie öffnet:\r%1", "The spreadsheet has been saved. There is no program here that opens it:\r%1"},
    {"noExport", Critical, "!! Achtung Fehler !!", " !! Attention !!", "Fehler 5010 -  70 %1 kann nicht geschrieben werden. Bitte prüfen Sie Ordner, Rechte und freien Platz.", "ERROR 5010 -  70 %1 cannot be written. Please check folder, permissions and free space."},
    // zero point and measurement
    {"noStream", Exclamation, "Meldung", "Message", "Nach 15 Sek kein Empfang", "No reception after 15 sec!"},
    {"correctionOff", Exclamation, "Meldung", "Message", "Statische Nullpunkt-Korrektur abgebrochen", "Static zero-point correction has been discontinued!"},
    {"correctionAborted", Critical, "Fehler", "Error", "Die Nullpunkt-Korrektur wurde abgebrochen!", "The zero-point correction has been discontinued!"},
    {"refused", Critical, "Fehler", "Error", "Fehler im Gerät oder in der Kommunikation", "Error in the unit under test, or communication error"},
    {"emptyProtocol", Information, "Beenden", "Message", "Protokoll enthält keine Daten und wird gelöscht!", "Protocol does not contain data and is deleted!"},
    {"recipeEnd", Information, "Meldung!", "Message!", "Das Rezept ist abgearbeitet!\rBeenden Sie das Messen oder fahren Sie mit freier Eingabe fort!", "The recipe has been run!\rTerminate the measuring, or continue with Free Input!"},
    {"freeSpeedNumber", Critical, "Eingabefehler", "Input Error", "Drehzahl muss ein nummerischer Wert sein!", "Number of revolutions must be a numeric value!"},
    {"freeSpeedRange", Critical, "Eingabefehler", "Input Error", "Drehzahl liegt außerhalb des gültigen Bereiches", "The permissible number of revolutions has been exeeded!"},
    {"freePowerNumber", Critical, "Eingabefehler", "Input Error", "Leistung muss ein nummerischer Wert sein!", "Power must be a numeric value!"},
    {"freePowerRange", Critical, "Eingabefehler", "Input Error", "Leistung liegt außerhalb des gültigen Bereiches", "Permissible power has been exeeded!"},
    {"freeTorque", Critical, "Drehmoment<=60Nm", "Torque<=60Nm", "Das zulässige Drehmoment ist überschritten!\r\nBitte geben Sie andere Werte ein!", "The permissible torque has been exeeded!\r\nPlease enter other values!"},
    {"readingNumber", Exclamation, "Fehler", "Fehler", "Eingabe muss ein nummerischer Wert sein!", "Input must be a numerical value!"},
    {"noData", Critical, "Kommunikationsfehler", "Communication Error", "Keine Daten bei ca. 3 x 6 Runden!", "No data at ca. 3 x 6 rounds!"},
    {"noReception", Exclamation, "Meldung", "Message", "Nach 18 Sek kein Empfang", "No reception after 18 sec"},
};
// clang-format on
} // namespace boxflags

using boxflags::boxTexts;

} // namespace support
