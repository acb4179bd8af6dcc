#include "session/sprache.h"

#include "platform/runtime.h"
#include "session/session.h"
#include "windows/msgbox.h"

namespace {

void setCaption(QObject *object, const char *text) {
    const char *property = object->property("title").isValid() ? "title" : "text"; // of frame, menu
    [[maybe_unused]] const bool known = object->setProperty(property, QString(text));
    Q_ASSERT_X(known, "setCaption", "no caption on this kind of control");
}

} // namespace

const QString &inSprache(const Text &text) {
    return gSprache == 1 ? text.german : text.english;
}

bool inDeutsch() {
    return gSprache == 1;
}

bool spracheGewählt() {
    return gSprache == 1 || gSprache == 2;
}

int meldung(const Text &text, int flags, const Text &titel) {
    return platform::msgBox(inSprache(text), flags, inSprache(titel));
}

void fehlerMerken(const Fehler &fehler) {
    gFehlerNr = static_cast<std::int16_t>(fehler.number());
    gFehlerText = inSprache(fehler.text());
}

void fehlerBox(const Text &kennung, const Fehler &fehler, const Text &titel) {
    fehlerMerken(fehler);
    platform::msgBox(inSprache(kennung) + Str(fehler.number()) + ' ' + gFehlerText,
                     platform::Critical, inSprache(titel));
}

void fehlerBox(const QString &kennung, const Fehler &fehler) {
    fehlerBox({"Fehler " + kennung, "ERROR " + kennung}, fehler);
}

std::function<void()> gefangen(const QString &kennung, std::function<void()> body) {
    return [kennung, body = std::move(body)] {
        try {
            body();
        } catch (const Fehler &fehler) {
            fehlerBox(kennung, fehler);
        }
    };
}

void englischBeschriften(QWidget &screen, std::span<const Beschriftung> texte) {
    if (gSprache != 2)
        return;
    for (const Beschriftung &b : texte) {
        QString name(b.name);
        if (name.isEmpty()) {
            screen.setWindowTitle(b.english);
            continue;
        }
        const bool tip = name.endsWith("#tip");
        if (tip)
            name.chop(4);
        auto *object = screen.findChild<QObject *>(name);
        Q_ASSERT_X(object, "englischBeschriften", b.name);
        if (!object)
            continue;
        if (tip && object->isWidgetType())
            static_cast<QWidget *>(object)->setToolTip(b.english);
        else
            setCaption(object, b.english);
    }
}
