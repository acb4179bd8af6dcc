#include "session/sprache.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>

#include "platform/runtime.h"
#include "session/session.h"
#include "windows/msgbox.h"

namespace {

const Text fehlerTitel{"!! Achtung Fehler !!", " !! Attention !!"};

void setCaption(QObject *object, const QString &text) {
    if (auto *button = qobject_cast<QAbstractButton *>(object))
        button->setText(text);
    else if (auto *label = qobject_cast<QLabel *>(object))
        label->setText(text);
    else if (auto *group = qobject_cast<QGroupBox *>(object))
        group->setTitle(text);
    else if (auto *menu = qobject_cast<QMenu *>(object))
        menu->setTitle(text);
    else if (auto *action = qobject_cast<QAction *>(object))
        action->setText(text);
    else
        Q_ASSERT_X(false, "setCaption", "no caption on this kind of control");
}

} // namespace

const QString &inSprache(const Text &text) {
    return gSprache == 1 ? text.german : text.english;
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

void fehlerBox(const QString &kennungDeutsch, const QString &kennungEnglisch,
               const Fehler &fehler) {
    fehlerBox({kennungDeutsch, kennungEnglisch}, fehler, fehlerTitel);
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
