#include "measure/stromlesen.h"

#include "link/controller.h"

void stromLesen(const std::function<bool()> &weiter, const std::function<void(std::uint8_t)> &byte,
                const std::function<void()> &daten) {
    do {
        platform::pump();
        if (!weiter() || MSComm1.InBufferCount() == 0)
            continue;
        const QByteArray block = MSComm1.Input();
        daten();
        for (const char einer : block) {
            byte(static_cast<std::uint8_t>(einer));
            if (!weiter())
                break;
        }
    } while (weiter());
}
