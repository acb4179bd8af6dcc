// Session values of the static measurement: written by the zero-point correction; the lever-arm
// calibration computes with them, too.
#pragma once

inline bool gErgebnis = false; ///< the last stage succeeded

inline double gOffsetRoh = 0;    ///< mean raw reading of the offset measurement
inline double gGainRoh = 0;      ///< mean raw reading of the gain measurement
inline double gOffsetSoll = 0;   ///< raw, of the working standard
inline double gGainSoll = 0;     ///< raw, of the direction of rotation
inline double gMomentFaktor = 0; ///< 50 raw units make this many N m
inline double gOffsetDiff = 0;   ///< drift in mN m
inline double gGainDiff = 0;     ///< drift in mN m
