// Session values of the lever-arm calibration.
#pragma once

inline double gErdschwere = 0;               ///< local gravity as entered, m/s²
inline double gSchwereFaktor = 1;            ///< gravity of reference over it
inline double gRechts = 0, gLinks = 0;       ///< last moment of a side in order to measure, N m
inline double gRefRechts = 0, gRefLinks = 0; ///< reference moments, N m
