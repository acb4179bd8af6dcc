// The session variables: what every screen reads and writes. One thread, no locks.
#pragma once

#include <QDate>
#include <QString>
#include <QTime>

#include <cstdint>

#include "status.h"

/// Key of a record, and number of a protocol.
using Schlüssel = std::int32_t;

// Language and person
extern std::int16_t gSprache; ///< 1 German, 2 English; 0 until start-up has read it
extern QString gPrüfer;
extern QString gProduktTitel;

// Selection of the session by key; the texts stand in auswahl.h
extern Schlüssel gKundenID;
extern Schlüssel gGerätID;
extern Schlüssel gRezeptID;
extern Schlüssel gToleranzID;
extern Schlüssel gProtokollID;
extern Schlüssel gProtokollWahl; ///< the number picked in a list of protocols
extern QString gRezeptName;      ///< name of the chosen specification
extern QString gMessverfahren;   ///< measuring method of the chosen specification
extern QString gProtokollTitel;  ///< number, " - " and name, for captions
extern QString gRezeptWahl;      ///< recipe that the recipe list selects when activated next
extern bool gRezeptAufruf;       ///< the recipe list chooses; otherwise it maintains
extern bool gNeuModus;           ///< a new-record screen was opened since there is no record

// Motor and running-in
extern std::int16_t gDrehrichtung; ///< 0 none, 1 Rechtslauf, 2 Linkslauf
extern bool gMotorEin;
extern bool gEingelaufen;
extern QTime gMotorStart;
extern double gRestMinuten;
extern double gRestSekunden;
extern double gEinlaufzeit;     ///< minutes.seconds
extern double gEinlaufLeistung; ///< W
extern std::int16_t gEinlaufMin;
extern std::int16_t gEinlaufSek;
extern std::int16_t gLaufzeitMin;
extern QString gEinlaufRestText; ///< "mm:ss"

// Status variables: set by the screen that closes, read by the one that comes to the front
extern std::int16_t gMessStatus;
extern std::int16_t gFormStatus;
extern std::int16_t gEinlaufStatus;
extern std::int16_t gDesktopFolge;
extern bool gMessenFreigabe;
extern bool gMessungLäuft;
extern bool gStopMessung;
extern bool gMessenAktiv;
extern std::int16_t gBerichtAntwort;
extern Schlüssel gBerichtProtokoll;

// The working standard: the last row of its calibration data
extern QString gSeriennummer;
extern QString gNKGerätetyp;
extern QDate gKalibrierdatum;
extern double gNormalOffset;
extern double gNormalGainR;
extern double gNormalGainL;
extern double gNormalGrenzwert; ///< N m
extern std::int16_t gNormalAnzahl;
extern QDate gHebelarmDatum;
extern QDate gHebelarmFällig;

// Process and failure
extern bool gDesktopAktiv; ///< every wait ends when it is false
extern bool gUpdateBeimBeenden;
extern std::int16_t gFehlerNr;
extern QString gFehlerText;

// Final test
extern bool gEPModus;
