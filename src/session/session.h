// The session variables: what every screen reads and writes. One thread, no locks.
#pragma once

#include <QDate>
#include <QString>
#include <QTime>

#include <cstdint>

#include "session/status.h"

/// Key of a record, and number of a protocol.
using Schlüssel = std::int32_t;

// Language and person
inline std::int16_t gSprache = 0; ///< 1 German, 2 English; 0 until start-up has read it
inline QString gPrüfer;
inline QString gProduktTitel;

// Selection of the session by key; the texts stand in auswahl.h
inline Schlüssel gKundenID = 0;
inline Schlüssel gGerätID = 0;
inline Schlüssel gRezeptID = 0;
inline Schlüssel gToleranzID = 0;
inline Schlüssel gProtokollID = 0;
inline Schlüssel gProtokollWahl = 0; ///< the number picked in a list of protocols
inline QString gRezeptName;          ///< name of the chosen specification
inline QString gMessverfahren;       ///< measuring method of the chosen specification
inline QString gProtokollTitel;      ///< number, " - " and name, for captions
inline QString gRezeptWahl;          ///< recipe that the recipe list selects when activated next
inline bool gRezeptAufruf = false;   ///< the recipe list chooses; otherwise it maintains
inline bool gNeuModus = false;       ///< a new-record screen was opened since there is no record

// Motor and running-in
inline std::int16_t gDrehrichtung = 0; ///< 0 none, 1 Rechtslauf, 2 Linkslauf
inline bool gMotorEin = false;
inline bool gEingelaufen = false;
inline QTime gMotorStart;
inline double gRestMinuten = 0;
inline double gRestSekunden = 0;
inline double gEinlaufzeit = 0;     ///< minutes.seconds
inline double gEinlaufLeistung = 0; ///< W
inline std::int16_t gEinlaufMin = 0;
inline std::int16_t gEinlaufSek = 0;
inline std::int16_t gLaufzeitMin = 0;
inline QString gEinlaufRestText; ///< "mm:ss"

// Status variables: set by the screen that closes, read by the one that comes to the front
inline Messstatus gMessStatus{};
inline Formstatus gFormStatus{};
inline Einlaufstatus gEinlaufStatus{};
inline Desktopfolge gDesktopFolge{};
inline bool gMessenFreigabe = false;
inline bool gMessungLäuft = false;
inline bool gStopMessung = false;
inline bool gMessenAktiv = false;
inline std::int16_t gBerichtAntwort = 0;
inline Schlüssel gBerichtProtokoll = 0; ///< that is being printed; 0 outside
inline QString gBerichtWahl;            ///< its name
inline QString gDruckerPDF;             ///< the printer that writes PDF files
inline QString gDruckerStandard;        ///< the one to return to
inline QString gPDFOrdner;

// The working standard: the last row of its calibration data
inline QString gSeriennummer;
inline QString gNKGerätetyp;
inline QDate gKalibrierdatum;
inline double gNormalOffset = 0;
inline double gNormalGainR = 0;
inline double gNormalGainL = 0;
inline double gNormalGrenzwert = 0; ///< N m
inline std::int16_t gNormalAnzahl = 0;
inline QDate gHebelarmDatum;
inline QDate gHebelarmFällig;

// Process and failure
inline bool gDesktopAktiv = false; ///< every wait ends when it is false
inline bool gUpdateBeimBeenden = false;
inline Datenbankzustand gDatenbankzustand{}; ///< nothing is measured while it is damaged
inline std::int16_t gFehlerNr = 0;
inline QString gFehlerText;

// Final test
inline bool gEPModus = false;        ///< the desktop of the final test is open
inline Schlüssel gEPProtokollID = 0; ///< of the head in work
inline Schlüssel gEPRezeptID = 0;    ///< of the chosen final-test recipe
inline QString gEPRezeptWahl;        ///< chosen in the list of final-test recipes, to be taken over
inline int gEPZähler = 0;            ///< complete results that the step shown takes
inline bool gToleranzOK = false;     ///< the last judgement; False before each
