#include "recall/beschaeftigt.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include "store/database.h"

namespace {

constexpr int geduld = 500; // ms

int lebende = 0;
bool gezeigt = false;

} // namespace

Beschäftigt::Beschäftigt() {
    if (++lebende > 1 || !gDatenbank.isOpen())
        return;
    QElapsedTimer seit;
    seit.start();
    gDatenbank.watch([seit](int) {
        if (!gezeigt && seit.elapsed() >= geduld) {
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
            gezeigt = true;
        }
        return true;
    });
}

Beschäftigt::~Beschäftigt() {
    if (--lebende > 0)
        return;
    if (gDatenbank.isOpen())
        gDatenbank.watch({});
    if (gezeigt)
        QGuiApplication::restoreOverrideCursor();
    gezeigt = false;
}
