// What can go wrong on the lines of the stand.
#pragma once

namespace simulator {

struct Faults {
    bool silent = false;          // nothing comes from the controller, though it hears and obeys
    int deafFrames = 0;           // so many frames to come are not heard: no echo, no effect
    double echoDelay = 0;         // ms by which every echo is late, "-" does not stop it
    int extraBytes = 0;           // 0x55 in front of every echo
    int lostBytes = 0;            // missing from every echo, from its second byte on
    int cutEvery = 0;             // every n-th six-round frame ends after five of nine bytes
    bool babble = false;          // random bytes all the time, between all others
    bool wrongMode = false;       // "#" is never answered with the lever-arm mode
    bool silentErgometer = false; // the ergometer takes its load, but answers nothing
    double answerDelay = 0;       // ms by which every answer of the ergometer is late
    bool wrongAnswer = false;     // its first byte is no "n"
    int answerLength = 0;         // only so many bytes of it come, 0 for all
    bool letterAnswer = false;    // letters in the places of its digits

    bool operator==(const Faults &) const = default;
};

} // namespace simulator
