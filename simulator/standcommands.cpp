#include "standcommands.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <optional>
#include <stdexcept>
#include <vector>

namespace simulator {

namespace {

using Words = std::vector<std::string_view>;

struct Wrong : std::runtime_error {
    using runtime_error::runtime_error;
};

Words split(std::string_view line) {
    constexpr std::string_view Blanks = " \t\r\n";
    Words words;
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(Blanks), line.size()));
        if (line.empty())
            return words;
        words.push_back(line.substr(0, line.find_first_of(Blanks)));
        line.remove_prefix(words.back().size());
    }
}

double number(std::string_view word, double lowest, double highest) {
    double value = 0;
    const char *end = word.data() + word.size();
    const auto read = std::from_chars(word.data(), end, value);
    if (read.ec != std::errc() || read.ptr != end || !(value >= lowest && value <= highest)) {
        char range[64];
        std::snprintf(range, sizeof range, "a number from %g to %g is wanted", lowest, highest);
        throw Wrong(range);
    }
    return value;
}

int count(std::string_view word) {
    return static_cast<int>(number(word, 0, 1000));
}

bool onOff(std::string_view word) {
    if (word != "on" && word != "off")
        throw Wrong("on or off is wanted");
    return word == "on";
}

LeverArm side(std::string_view word) {
    if (word == "none")
        return LeverArm::None;
    if (word == "left")
        return LeverArm::Left;
    if (word == "right")
        return LeverArm::Right;
    throw Wrong("none, left or right is wanted");
}

bool leverMode(std::string_view word) {
    if (word != "lever" && word != "normal")
        throw Wrong("lever or normal is wanted");
    return word == "lever";
}

struct Setting {
    const char *name;
    const char *help;
    void (*apply)(Stand &, std::string_view);
};

constexpr Setting Settings[] = {
    {"load", "W: braking load of the ergometer, 0 to 999",
     [](Stand &s, std::string_view w) { s.setLoad(number(w, 0, 999)); }},
    {"coupled", "on|off: shaft between standard and ergometer",
     [](Stand &s, std::string_view w) { s.setCoupled(onOff(w)); }},
    {"lever", "none|left|right: side on which the lever arm hangs",
     [](Stand &s, std::string_view w) { s.setLeverArm(side(w)); }},
    {"moment", "NM: moment of the lever arm, 0 to 100",
     [](Stand &s, std::string_view w) { s.setLeverMoment(number(w, 0, 100)); }},
    {"mode", "lever|normal: mode of operation of the controller",
     [](Stand &s, std::string_view w) { s.setLeverMode(leverMode(w)); }},
    {"offsetdrift", "RAW: drift of the offset, 50 are 1 N m",
     [](Stand &s, std::string_view w) { s.setOffsetDrift(number(w, -9000, 9000)); }},
    {"gaindrift", "RAW: drift of the gain, 50 are 1 N m",
     [](Stand &s, std::string_view w) { s.setGainDrift(number(w, -9000, 9000)); }},
    {"noise", "RAW: scatter of the static readings, 50 are 1 N m",
     [](Stand &s, std::string_view w) { s.setReadingNoise(number(w, 0, 1000)); }},
    {"speederror", "RPM: of the speed that the ergometer shows",
     [](Stand &s, std::string_view w) { s.setErgometerSpeedError(number(w, -300, 300)); }},
    {"torqueerror", "NM: of the torque that the standard measures",
     [](Stand &s, std::string_view w) { s.setTorqueError(number(w, -100, 100)); }},
    {"split", "on|off: records come byte by byte",
     [](Stand &s, std::string_view w) { s.setWholeRecords(!onOff(w)); }},
    {"serial", "TEXT: serial number of the standard",
     [](Stand &s, std::string_view w) { s.setSerialNumber(std::string(w)); }},
};

struct Fault {
    const char *name;
    const char *help;
    void (*apply)(Faults &, std::string_view);
};

constexpr Fault FaultTable[] = {
    {"silent", "on|off: nothing comes from the controller",
     [](Faults &f, std::string_view w) { f.silent = onOff(w); }},
    {"deaf", "N: the next N frames are not heard",
     [](Faults &f, std::string_view w) { f.deafFrames = count(w); }},
    {"late", "MS: every echo is late, 0 to 60000",
     [](Faults &f, std::string_view w) { f.echoDelay = number(w, 0, 60000); }},
    {"extra", "N: bytes in front of every echo",
     [](Faults &f, std::string_view w) { f.extraBytes = count(w); }},
    {"lost", "N: bytes missing from every echo",
     [](Faults &f, std::string_view w) { f.lostBytes = count(w); }},
    {"cut", "N: every Nth six-round frame is cut, 0 for none",
     [](Faults &f, std::string_view w) { f.cutEvery = count(w); }},
    {"babble", "on|off: random bytes all the time",
     [](Faults &f, std::string_view w) { f.babble = onOff(w); }},
    {"wrongmode", "on|off: never reports the lever-arm mode",
     [](Faults &f, std::string_view w) { f.wrongMode = onOff(w); }},
    {"ergometer", "on|off: the ergometer answers nothing",
     [](Faults &f, std::string_view w) { f.silentErgometer = onOff(w); }},
    {"answerlate", "MS: every answer of the ergometer is late, 0 to 60000",
     [](Faults &f, std::string_view w) { f.answerDelay = number(w, 0, 60000); }},
    {"answerwrong", "on|off: its first byte is wrong",
     [](Faults &f, std::string_view w) { f.wrongAnswer = onOff(w); }},
    {"answercut", "N: only N bytes of it come, 0 for all",
     [](Faults &f, std::string_view w) { f.answerLength = count(w); }},
    {"answerletters", "on|off: letters for its digits",
     [](Faults &f, std::string_view w) { f.letterAnswer = onOff(w); }},
};

std::string help() {
    std::string text;
    for (const Setting &setting : Settings)
        text += std::string(setting.name) + ' ' + setting.help + '\n';
    for (const Fault &fault : FaultTable)
        text += std::string("fault ") + fault.name + ' ' + fault.help + '\n';
    return text + "fault none: all of them over\n"
                  "unplug [com1|com4]: the line is gone, both without a name\n"
                  "plug [com1|com4]: and back\n"
                  "status: state of the stand in one line\n"
                  "quit\n";
}

std::string text(std::optional<double> value) {
    char digits[32];
    if (!value)
        return "none";
    std::snprintf(digits, sizeof digits, "%.4f", *value);
    return digits;
}

std::string status(const Stand &stand) {
    constexpr const char *Sides[] = {"none", "left", "right"};
    char line[400];
    std::snprintf(
        line, sizeof line,
        "set=%.2f speed=%.2f direction=%s motor=%s load=%.0f torque=%.2f power=%.2f coupled=%s "
        "lever=%s mode=%s offset=%s factor=%s given=%s\n",
        stand.setSpeed(), stand.speed(), stand.direction() == Direction::Right ? "right" : "left",
        stand.motorOn() ? "on" : "off", stand.load(), stand.torque(), stand.power(),
        stand.coupled() ? "on" : "off", Sides[static_cast<int>(stand.leverArm())],
        stand.leverMode() ? "lever" : "normal", text(stand.offsetWritten()).c_str(),
        text(stand.factorWritten()).c_str(),
        stand.givenLoad() ? std::to_string(*stand.givenLoad()).c_str() : "none");
    return line;
}

void plug(const Words &words, bool connected, const Host &host) {
    const bool all = words.size() == 1;
    if (words.size() > 2 || (!all && words[1] != "com1" && words[1] != "com4"))
        throw Wrong("com1, com4 or nothing is wanted");
    for (const Line line : {Line::Controller, Line::Ergometer}) {
        if (!all && words[1] != (line == Line::Controller ? "com1" : "com4"))
            continue;
        if (const std::string failure = host.plug(line, connected); !failure.empty())
            throw Wrong(failure);
    }
}

void setFault(const Words &words, Stand &stand) {
    Faults faults = stand.faults();
    if (words.size() == 2 && words[1] == "none") {
        stand.setFaults({});
        return;
    }
    if (words.size() != 3)
        throw Wrong("a fault and its value are wanted");
    for (const Fault &fault : FaultTable) {
        if (words[1] == fault.name) {
            fault.apply(faults, words[2]);
            stand.setFaults(faults);
            return;
        }
    }
    throw Wrong("no such fault");
}

/// What it tells.
std::string run(const Words &words, Stand &stand, const Host &host) {
    const std::string_view name = words[0];
    if (name == "fault") {
        setFault(words, stand);
        return {};
    }
    if (name == "plug" || name == "unplug") {
        plug(words, name == "plug", host);
        return {};
    }
    if (words.size() == 1) {
        if (name == "help")
            return help();
        if (name == "status")
            return status(stand);
        if (name == "quit") {
            host.quit();
            return {};
        }
    }
    for (const Setting &setting : Settings) {
        if (name != setting.name)
            continue;
        if (words.size() != 2)
            throw Wrong("one value is wanted");
        setting.apply(stand, words[1]);
        return {};
    }
    throw Wrong("no such command, try help");
}

} // namespace

std::string runCommand(std::string_view line, Stand &stand, const Host &host) {
    const Words words = split(line);
    if (words.empty())
        return {};
    try {
        return run(words, stand, host) + "ok\n";
    } catch (const Wrong &wrong) {
        return std::string("error: ") + wrong.what() + '\n';
    }
}

} // namespace simulator
