// bench-measuring DIR [SECONDS]: takes the program in real time to a step that is being measured,
// one frame a second, and tells what it costs; on the way, what the idle desktop holds, and behind
// it the charts of the dynamic measurement with 120 frames a second.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>

#include <sys/resource.h>

#include "app/start.h"
#include "fastline.h"
#include "figures.h"
#include "largedatabase.h"
#include "platform/clock.h"
#include "windows/msgbox.h"
#include "workplace.h"

namespace {

using namespace support;
using bench::Wanted;

constexpr int longestWait = 60'000; // ms for one station
constexpr int idleSeconds = 10;
constexpr int defaultSeconds = 60;

/// Of this process, user and system, in seconds.
double processorTime() {
    rusage usage;
    ::getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// MB of memory that the process has resident; with `kind` "RssAnon" without the mapped files.
double resident(const std::string &kind = "VmRSS") {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(kind + ':'))
            return std::stod(line.substr(kind.size() + 1)) / 1024;
    }
    return NAN;
}

struct Span {
    QElapsedTimer time;
    double processor = 0;

    void begin() {
        time.start();
        processor = processorTime();
    }
    double seconds() const { return static_cast<double>(time.elapsed()) / 1000; }
    double percent() const { return (processorTime() - processor) / seconds() * 100; }
};

struct Station {
    const char *name;
    std::function<bool()> reached;
    std::function<void()> goOn;
};

class Road {
  public:
    explicit Road(int seconds) : mStations(stations(seconds)) {
        platform::setBoxAnswerer([](const platform::Box &box) {
            return (box.flags & 15) == platform::YesNo ? platform::Yes : platform::OK;
        });
        mLook.onTick = [this] { look(); };
        mLook.setEnabled(true);
        mSince.start();
    }
    ~Road() { platform::setBoxAnswerer({}); }

  private:
    /// Looks again only after so long: what is measured then is the program and not the looking.
    void rest(int seconds) {
        mSpan.begin();
        mLook.setInterval(seconds * 1000);
    }

    void look() {
        if (mNext == mStations.size())
            return;
        const Station &station = mStations[mNext];
        if (!station.reached()) {
            if (mSince.elapsed() > longestWait) {
                std::fprintf(stderr, "not reached: %s\n", station.name);
                mNext = mStations.size();
                QApplication::exit(1);
            }
            return;
        }
        ++mNext;
        mSince.restart();
        mLook.setInterval(100);
        station.goOn();
    }

    std::vector<Station> stations(int seconds) {
        const auto front = [](frm name) { return [name] { return inFront(name); }; };
        const auto ready = [](frm name, const char *button) {
            return [name, button] { return inFront(name) && canPress(name, button); };
        };
        const DemoNames demo;
        return {
            {"login", front(frm::Login),
             [] {
                 type(frm::Login, "txtUserName", "M. Prüfer");
                 press(frm::Login, "pbok");
             }},
            {"desktop", front(frm::Desktop), [this] { rest(idleSeconds); }},
            {"idle desktop", front(frm::Desktop),
             [this] {
                 tellIdle();
                 press(frm::Desktop, "pbKunde");
             }},
            {"customers", front(frm::Kunden),
             [demo] {
                 type(frm::Kunden, "cmbKundenname", demo.customer);
                 press(frm::Kunden, "pbexit");
             }},
            {"units", front(frm::Gerät),
             [demo] {
                 type(frm::Gerät, "cmbIdent", demo.ident);
                 enter(frm::Gerät, "cmbIdent");
             }},
            {"recipes", front(frm::Rezepte),
             [demo] {
                 type(frm::Rezepte, "cmbRezeptname", demo.recipe);
                 press(frm::Rezepte, "pbok");
             }},
            {"desktop, chosen", ready(frm::Desktop, "pbMessen"),
             [] { press(frm::Desktop, "pbDrehR"); }},
            {"direction", front(frm::MotorDrehR),
             [] {
                 press(frm::MotorDrehR, "obRechts");
                 press(frm::MotorDrehR, "pbok");
             }},
            {"measuring begins", ready(frm::Desktop, "pbMessen"),
             [] { press(frm::Desktop, "pbMessen"); }},
            {"uncouple", front(frm::VorStatNPK), [] { press(frm::VorStatNPK, "pbok"); }},
            {"zero point", ready(frm::StatMessen, "pbWeiter"),
             [] { press(frm::StatMessen, "pbWeiter"); }},
            {"couple", front(frm::NachStatNPK), [] { press(frm::NachStatNPK, "pbok"); }},
            {"protocol", front(frm::ProtokollNr),
             [] {
                 press(frm::ProtokollNr, "obNeu");
                 type(frm::ProtokollNr, "txtNeu", "Dauerlauf");
                 press(frm::ProtokollNr, "pbok");
             }},
            {"a measured step", ready(frm::Messen, "pbSpeichern"),
             [this, seconds] {
                 countFrames();
                 rest(seconds);
             }},
            {"the charts", front(frm::Messen),
             [this] {
                 tellMeasuring();
                 press(frm::Messen, "pbDynMess");
             }},
            {"the first picture", ready(frm::GraphLite, "pbZahlen"), [this] { rest(idleSeconds); }},
            {"the end of the measurement", front(frm::GraphLite),
             [this] {
                 tellCharts();
                 beendenOhneFrage();
             }},
        };
    }

    /// A frame fills three boxes at once; one of them may show the same as before.
    void countFrames() {
        for (const char *box : {"txtIST_n_torvena", "txtIST_D_torvena", "txtIST_P_torvena"}) {
            QObject::connect(control<QLineEdit>(frm::Messen, box), &QLineEdit::textChanged, [this] {
                if (!mSinceFrame.isValid() || mSinceFrame.elapsed() > 500)
                    ++mFrames;
                mSinceFrame.start();
            });
        }
    }

    void tellIdle() const {
        std::printf("idle desktop: %.1f MB resident, %.1f MB of it its own, %.2f %% of a core\n",
                    resident(), resident("RssAnon"), mSpan.percent());
        bench::figure("Idle desktop, resident", resident(), "MB", Wanted::Below, 150);
        bench::figure("Idle desktop, of which not files", resident("RssAnon"), "MB");
        bench::figure("Idle desktop, of one core", mSpan.percent(), "%");
    }

    void tellMeasuring() const {
        const double percent = mSpan.percent();
        std::printf("measuring: %d frames in %.0f s, %.2f %% of a core, %.1f MB resident\n",
                    mFrames, mSpan.seconds(), percent, resident());
        bench::figure("Measuring, frames a second", mFrames / mSpan.seconds(), "1/s");
        bench::figure("Measuring, of one core", percent, "%", Wanted::Below, 2);
        bench::figure("Measuring, resident", resident(), "MB");
    }

    void tellCharts() const {
        const double percent = mSpan.percent();
        std::printf("charts: 120 frames a second, %.2f %% of a core\n", percent);
        bench::figure("Charts at 120 frames a second, of one core", percent, "%", Wanted::Below, 5);
    }

    std::vector<Station> mStations;
    size_t mNext = 0;
    int mFrames = 0;
    QElapsedTimer mSinceFrame;
    platform::Timer mLook{100};
    QElapsedTimer mSince;
    Span mSpan;
};

} // namespace

int main(int argc, char *argv[]) {
    if (argc < 2) {
        std::fputs("usage: bench-measuring DIR [SECONDS]\n", stderr);
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    bench::prepareLargeDatabase(argv[1]);
    const bench::FastLine line(QDir(argv[1]).absolutePath().toStdString());
    if (!line.ready() || !QDir::setCurrent(argv[1])) {
        std::fputs("the line could not be set up\n", stderr);
        return 1;
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    int result = 0;
    {
        programmStarten();
        const Road road(argc > 2 ? std::max(std::atoi(argv[2]), 1) : defaultSeconds);
        result = QApplication::exec();
    }
    programmAufräumen();
    bench::writeFigures();
    return result;
}
