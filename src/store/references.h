// What refers to what. The engine watches none of it, since the program deletes table by table.
#pragma once

struct Reference {
    const char *table, *column, *target, *key;
};
/// 0 and Null refer to nothing on purpose.
inline constexpr Reference references[] = {
    {"Ergometer", "KundenID", "Kunden", "KundenID"},
    {"Rezeptnamen", "ToleranzID", "Toleranzen", "ID"},
    {"Rezepte", "RezeptID", "Rezeptnamen", "RezeptID"},
    {"EP_Rezepte", "RezeptID", "EP_Rezeptnamen", "RezeptID"},
    {"EP_Messwerte", "ProtokollID", "EP", "EP_ID"},
    {"Hebelarmkalibrierung", "NK_ID", "Normalkalibrierdaten", "NK_ID"},
    {"Protokoll", "KundenID", "Kunden", "KundenID"},
    {"Protokoll", "GerätID", "Ergometer", "GerätID"},
    {"Protokoll", "PrüfungsArt", "Toleranzen", "ID"},
    {"Protokoll", "NK_ID", "Normalkalibrierdaten", "NK_ID"},
    {"Protokoll_temp", "KundenID", "Kunden", "KundenID"},
    {"Protokoll_temp", "GerätID", "Ergometer", "GerätID"},
    {"Protokoll_temp", "PrüfungsArt", "Toleranzen", "ID"},
    {"Protokoll_temp", "NK_ID", "Normalkalibrierdaten", "NK_ID"},
    {"Messwerte", "ProtokollID", "Protokoll", "ProtokollID"},
    {"Messwerte_temp", "ProtokollID", "Protokoll_temp", "ProtokollID"},
    {"Blutdruck", "ProtokollID", "Protokoll", "ProtokollID"},
    {"Blutdruck_temp", "ProtokollID", "Protokoll_temp", "ProtokollID"},
    {"SecControl", "ProtokollID", "Protokoll", "ProtokollID"},
    {"SecControl_temp", "ProtokollID", "Protokoll_temp", "ProtokollID"},
};
