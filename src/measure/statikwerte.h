// Session values of the static measurement: also the lever-arm calibration computes with them.
#pragma once

extern bool gErgebnis; ///< the last stage succeeded

extern double gOffsetRoh;    ///< mean raw reading of the offset measurement
extern double gGainRoh;      ///< mean raw reading of the gain measurement
extern double gOffsetSoll;   ///< raw, of the working standard
extern double gGainSoll;     ///< raw, of the direction of rotation
extern double gMomentFaktor; ///< 50 raw units make this many N m
extern double gOffsetDiff;   ///< drift in mN m
extern double gGainDiff;     ///< drift in mN m
