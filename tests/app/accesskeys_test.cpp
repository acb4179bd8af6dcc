// One road past all screens, and at each stop: every control by keyboard, its label, the default
// button, the window whole on the display, its title, and in English nothing German left.
#include <QAbstractScrollArea>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "workplace.h"

namespace {

using namespace support;

QStringList headings(const QHeaderView &header) {
    QStringList texts;
    for (int section = 0; header.model() && section < header.count(); ++section)
        texts += header.model()->headerData(section, header.orientation()).toString();
    return texts;
}

/// All captions of the screen, of menus, headings and hints too.
QStringList visibleTexts(const Screen &screen) {
    QStringList texts{screen.windowTitle()};
    for (const QWidget *widget : screen.findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            texts += button->text();
        else if (const auto *label = qobject_cast<const QLabel *>(widget))
            texts += label->text();
        else if (const auto *group = qobject_cast<const QGroupBox *>(widget))
            texts += group->title();
        else if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
            texts += edit->placeholderText();
        else if (const auto *header = qobject_cast<const QHeaderView *>(widget))
            texts += headings(*header);
        texts += widget->toolTip();
    }
    for (const QAction *action : screen.findChildren<QAction *>())
        texts += action->text();
    for (const QMenu *menu : screen.findChildren<QMenu *>())
        texts += menu->title();
    texts.removeAll(QString());
    return texts;
}

class Keyboard : public Workplace {
  protected:
    Keyboard() {
        change("UPDATE Toleranzen SET Bezeichnung = 'medical devices'");
        change("UPDATE Normalkalibrierdaten SET Normal = 'Torque Standard'");
        change("UPDATE Rezeptnamen SET RezName = 'Short' WHERE RezeptID = 1");
        views["stop"] = [this] { // its title
            Screen *at = platform::frontScreen();
            SCOPED_TRACE(at->caption());
            inspect(*at);
            expectTabGoesRound(at);
            const QRect display = at->screen()->availableGeometry();
            EXPECT_TRUE(display.contains(at->geometry()) || at->width() > display.width() - 20)
                << at->width() << ' ' << at->x();
            if (english())
                expectNothingGerman(*at);
            return at->caption();
        };
    }

    /// What need not be shown for it.
    void inspect(const Screen &screen) {
        mSeen += &typeid(screen);
        expectOwnKeys(screen);
        expectDefaultButton(screen);
        expectLabels(screen);
    }
    static void expectNothingGerman(const Screen &screen) {
        static const QRegularExpression german(
            R"((?x)kunde|gerät|rezept|prüf|dreh|leistung|mess(en|ung|wert|art)|beenden|abbrechen|datei
               |speichern|ausw[aä]hl|sprache|hilfe|stammdaten|protokoll|lauf|bitte|hebelarm|fällig
               |kalibriert|datum|achtung|meldung|weiter|straße|suche|anzahl|schnittstelle|toleranz
               |abweichung|ausführen|übernehmen|freie|nächste|eingabe|sollwert|blutdruck|sicherheit
               |\b(und|der|die|das|ist|wird|nicht|mit|von|bis|zum|neu|ort|links|rechts|soll|deutsch)\b)",
            QRegularExpression::CaseInsensitiveOption |
                QRegularExpression::UseUnicodePropertiesOption);
        for (QString shown : visibleTexts(screen))
            EXPECT_FALSE(shown.remove('&').contains(german)) << shown;
    }
    static QString keyOf(const QString &text) { return QKeySequence::mnemonic(text).toString(); }

    /// All that Alt and a letter reach, and what a person is led to believe it does.
    static void expectOwnKeys(const Screen &screen) {
        QMultiMap<QString, QString> users;
        for (const auto *widget : screen.findChildren<QWidget *>()) {
            const QVariant title = widget->property("title"); // of a frame, of a menu
            const QString text = (title.isValid() ? title : widget->property("text")).toString();
            const auto *label = qobject_cast<const QLabel *>(widget);
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            const bool needed =
                button && !text.isEmpty() && (text[0].isLetter() || QString("+−").contains(text));
            const QString key = button ? button->shortcut().toString() : keyOf(text);
            EXPECT_TRUE(!key.isEmpty() || !needed) << widget->objectName();
            EXPECT_TRUE(key.isEmpty() || !label || label->buddy()) << widget->objectName();
            if (!key.isEmpty() && !qobject_cast<const QLineEdit *>(widget))
                users.insert(key, widget->objectName());
        }
        for (const QString &key : users.uniqueKeys()) {
            QStringList used = users.values(key);
            used.sort();
            const bool given = used == QStringList{"pbDrehzNull", "pbNext"};
            EXPECT_TRUE(given || used.size() == 1) << key << ": " << used.join(' ');
        }
        for (const auto *menu : screen.findChildren<QMenu *>()) {
            QStringList keys;
            for (const QAction *entry : menu->actions()) {
                if (!entry->isSeparator())
                    keys += keyOf(entry->text());
            }
            EXPECT_TRUE(!keys.contains("") && !keys.removeDuplicates()) << menu->title();
        }
    }
    /// One at most besides the button with the keyboard: OK where there is one.
    static void expectDefaultButton(const Screen &screen) {
        QStringList captions, leading;
        for (const auto *button : screen.findChildren<QPushButton *>()) {
            captions += button->text();
            if (button->isDefault() && !(button->hasFocus() && button->autoDefault()))
                leading += button->text();
        }
        EXPECT_LE(leading.size(), 1) << leading.join(' ');
        EXPECT_EQ(leading.contains("&OK"), captions.contains("&OK"));
    }
    static bool isField(const QWidget *widget) {
        const QWidget *parent = widget->parentWidget();
        return widget->focusPolicy() != Qt::NoFocus &&
               (qobject_cast<const QComboBox *>(widget) ||
                qobject_cast<const QAbstractSpinBox *>(widget) ||
                (qobject_cast<const QLineEdit *>(widget) && !widget->focusProxy()) ||
                (qobject_cast<const QScrollBar *>(widget) &&
                 !qobject_cast<const QAbstractScrollArea *>(parent->parentWidget())));
    }
    static void expectLabels(const Screen &screen) {
        QSet<const QWidget *> named;
        for (const auto *label : screen.findChildren<QLabel *>())
            named += label->buddy();
        for (const auto *widget : screen.findChildren<QWidget *>()) {
            const bool option =
                widget->objectName() == "cmbVorhanden"; // beside the one that opens it
            const bool inTable = !widget->accessibleName().isEmpty(); // named by row and column
            EXPECT_TRUE(!isField(widget) || option || inTable || named.contains(widget))
                << widget->objectName();
        }
    }

    /// Tab comes to everything that can be used and back to where it began.
    static void expectTabGoesRound(const Screen *screen) {
        QWidget *first = screen->focusWidget(), *at = first;
        ASSERT_TRUE(first) << "nothing has the keyboard";
        QStringList way;
        do {
            way += at->objectName();
            EXPECT_TRUE(at->isVisible() && at->isEnabled()) << way.last();
            QTest::keyClick(at, Qt::Key_Tab);
            at = screen->focusWidget();
        } while (at != first && way.size() < 40);
        EXPECT_EQ(at, first) << way.join(' ');
        for (const auto *widget : screen->findChildren<QWidget *>()) {
            const QString name = widget->objectName();
            const bool option = qobject_cast<const QRadioButton *>(widget); // by arrow keys
            const bool due = !option && (widget->focusPolicy() & Qt::TabFocus) &&
                             !widget->focusProxy() && widget->isVisible() && widget->isEnabled();
            EXPECT_TRUE(!due || name.isEmpty() || name.startsWith("qt_") || way.contains(name))
                << name << " is not reached";
        }
    }

    QSet<const std::type_info *> mSeen;
};

JOURNEY_P(Keyboard, ReachesEverythingOnAllScreens) {
    start();
    co_await go(R"(
        @Login ; stop == Anmeldung | Registration ; txtUserName = M. Prüfer ; pbok ; @Desktop
        stop == torvena ; pbKunde ; @Kunden ; cmbKundenname = Klinikum Ährenfeld
        stop == Kunde auswählen | Select Customer ; pbNeu ; @NeuKunde
        stop == Neuer Kunde | New Customer ; pbexit ; @Kunden ; cmbKundenname = Klinikum Ährenfeld
        pbchange ; @ÄndKund ; stop == Kunde ändern | Edit Customer ; pbexit ; @Kunden
        cmbKundenname = Klinikum Ährenfeld ; pbDelete ; @LöschKunde
        stop == Kunde löschen | Delete Customer ; pbCancel ; @Kunden
        cmbKundenname = Klinikum Ährenfeld ; ? unitNow yes ; pbexit ; @Gerät ; cmbIdent = AEH-001
        stop == Gerät auswählen | Select Unit ; pbNeu ; @NeuGerät ; stop == Neues Gerät | New Unit
        pbexit ; @Gerät ; cmbIdent = AEH-001 ; pbchange ; @ÄndGerät
        stop == Gerät ändern | Edit Unit ; pbexit ; @Gerät ; cmbIdent = AEH-001 ; pbDelete
        @LöschGerät ; stop == Gerät löschen | Delete Unit ; pbNo ; @Gerät ; cmbIdent = AEH-001
        ? recipeNow no ; pbok ; @Desktop ; mnuToleranzen ; @Toleranzen ; stop == Spezifikation KE
        pbexit ; @Desktop ; mnuRezepte ; @Rezepte ; cmbRezeptname = Short
        stop == Rezepte | Recipes ; pbÄndRez ; @ÄndRez
        stop == Änderung im Rezept 'Short' | Canges In Recipe 'Short' ; pbexit ; @Rezepte
        pbNeuRezept ; @NeuRezept ; txtRezName = New ; stop == Neues Rezept | New Recipe ; pbexit
        @Rezepte ; pbexit ; @Desktop ; pbRezept ; @Rezepte ; cmbRezeptname = Short
        stop == Rezepte | Recipes ; pbok ; @Desktop ; stop == torvena ; mnuSSParameter ; @Interface
        stop == Schnittstellenparameter | Interface Settings ; pbSS2 ; @SecondInterface
        stop == Parameter der zweiten Schnittstelle | Second Interface Settings ; pbexit ; @Desktop
        mnuEinlaufen
        @Einlaufen ; stop == Einlaufparameter | Running-In Parameters ; pbAbbrechen ; @Desktop
        mnuRoute ; @Sort ; stop == Kundendatenbank | Customer Database ; pbok ; @Desktop
        mnuProtVerw ; @Bericht1
        stop == Protokollverwaltung | Protocol Administration ; pbDeleteExt ; @DeleteExtended
        stop == Erweitertes Löschen | Delete Extended ; pbok ; @Bericht1 ; CancelButton ; @Desktop
        mnuNachweis ; @Nachweis ; stop == Nachweis | Audit Trail ; pbok ; @Desktop
        pbBlutdruck ; @BlutdruckAbfrage ; obNeu ; stop == Protokoll wählen | Select Protocol ; pbok
        @Blutdruck ; stop ~ Protokoll 22 - |Protocol 22 -  ; pbexit ; @Desktop
        mnuÜber ; @Über ; stop == Über torvena | About torvena ; pbexit ; @Desktop
        mnuUpdate ; @Refresh ; stop == Datenbank aktualisieren | Update Database ; pbexit ; @Desktop
        pbSecControl ; @BlutdruckAbfrage ; obNeu ; pbok ; @SecControl
        stop ~ Protokoll 22 - |Protocol 22 -  ; pbexit ; @Desktop
        pbDrehR ; @MotorDrehR ; stop == Motor-Drehrichtung | Direction Of Rotation ; obLinks ; pbok
        @Desktop ; ? notRunIn yes ; pbMessen ; @VorStatNPK
        stop == Vorbereitung der statischen Nullpunktkorrektur | Preparation For The Static Zero-point Correction
        pbok ; until can StatMessen.pbWeiter
        stop == Statische Nullpunktkorrektur und Verstärkungskontrolle | Static Zero-Point And Amplifier Correction
        pbWeiter ; @NachStatNPK
        stop == Ende der statischen Nullpunktkorrektur | End Of The Static Zero-point Correction
        pbok ; @ProtokollNr ; stop == Protokollnummer | Protocol Number ; obNeu
        stop == Protokollnummer | Protocol Number ; txtNeu = Keys ; pbok ; @Messen ; stand load 100
        step 1 60 ; pbDynMess ; @GraphLite ; stop == Messdaten | Measuring Data ; pbSkalaN ; @SetScale
        stop == Eingabe Skalierung | Scaling Input ; pbAbbrechen ; @GraphLite ; pbBeenden ; @Messen
        step 1 60 ; pbSpeichern ; step 2 80
        stop == Sechs Runden - Messen       Prüfprotokoll: 22 - Keys | Six Rounds - Measuring       Test Protocol: 22 - Keys
        pbFreieEing ; pass 100
        stop == Sechs Runden - Messen       Prüfprotokoll: 22 - Keys | Six Rounds - Measuring       Test Protocol: 22 - Keys
        pbAbbrechen ; @Desktop ; stop == torvena)");
    for (int name = 0; name <= int(frm::Test); ++name) {
        if (!exists(frm(name)))
            continue;
        const Screen &other = form(frm(name));
        SCOPED_TRACE(other.caption().toStdString());
        if (!mSeen.contains(&typeid(other)))
            inspect(other);
    }
}

JOURNEY_P(Keyboard, ReachesTheRecipesOfTheFinalTest) {
    change("UPDATE EP_Rezeptnamen SET RezName = 'Short', Toleranz = 'class' WHERE RezeptID = 1");
    co_await logIn();
    form(frm::EPRezepte).showModal();
    co_await go(R"(
        @EPRezepte ; stop == Rezepte der Endprüfung | Final Test Recipes ; pbÄndRez ; @EPÄndRez
        stop == Änderung im Rezept 'Short' | Change in the recipe 'Short' ; pbexit ; @EPRezepte
        pbNeuRezept ; @EPNeuRezept ; txtRezName = New
        stop == Neues Rezept der Endprüfung | New Final Test Recipe)");
}

JOURNEY_P(Keyboard, ReachesTheDesktopOfTheFinalTest) {
    change("UPDATE System SET Endprüfung = -1");
    co_await logIn();
    co_await go(R"(
        stop == torvena ; pbEndprüf ; @Endprüf
        stop == Endprüfprotokoll für Ergometer | Final Test Protocol For Ergometers)");
}

} // namespace
