#include "app/verzeichnisfrage.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "session/sprache.h"
#include "store/workplace.h"
#include "windows/stil.h"

using namespace platform;

namespace {

constexpr int breite = 592; // of the text

const Text &worte(Befund befund) {
    static const Text texte[] = {
        {"Das Verzeichnis wird angelegt und eingerichtet.", "The directory is made and filled."},
        {"Das Verzeichnis ist leer und wird eingerichtet.",
         "The directory is empty and will be filled."},
        {"Dort liegt eine Datenbank von torvena; sie wird verwendet, wie sie ist.",
         "There is a database of torvena, which is used as it is."},
        {"Dort liegen schon andere Dateien; die von torvena kommen hinzu. Besser ist ein "
         "Verzeichnis für torvena allein.",
         "There are other files; those of torvena are put beside them. A directory for torvena "
         "alone is better."},
        {"Das ist kein Verzeichnis. Bitte wählen Sie ein anderes.",
         "That is not a directory. Please choose another one."},
        {"Dort dürfen Sie nicht schreiben. Bitte wählen Sie ein anderes Verzeichnis.",
         "You may not write there. Please choose another directory."}};
    return texte[static_cast<int>(befund)];
}

QPushButton *knopf(const char *name, const Text &text) {
    auto *neu = new QPushButton(inSprache(text));
    neu->setObjectName(name);
    neu->setMinimumSize(104, 32);
    return neu;
}

} // namespace

Befund verzeichnisBefund(const QString &pfad) {
    QFileInfo ort(pfad);
    const bool da = ort.exists();
    while (!ort.exists() && ort.filePath() != ort.path())
        ort.setFile(ort.path());
    if (pfad.isEmpty() || !ort.isDir())
        return Befund::KeinVerzeichnis;
    if (!ort.isWritable() || !ort.isExecutable())
        return Befund::NichtBeschreibbar;
    if (!da)
        return Befund::WirdAngelegt;
    if (hasDatabase(pfad))
        return Befund::MitDatenbank;
    return QDir(pfad).isEmpty() ? Befund::Leer : Befund::MitAnderem;
}

Verzeichnisfrage::Verzeichnisfrage(const QString &vorschlag, const QString &fort)
    : mPfad(new QLineEdit(QDir::toNativeSeparators(vorschlag))),
      mBefund(new QLabel),
      mOk(knopf("pbok", {"&OK", "&OK"})) {
    setWindowTitle("torvena");
    auto *kopf = new QLabel(inSprache({"Arbeitsverzeichnis", "Working Directory"}));
    setSchrift(kopf, 14, true);
    const Text frage{"Wo soll torvena arbeiten? Dort liegen die Datenbank, ihre Sicherungskopien, "
                     "Berichte und Exporte.",
                     "Where shall torvena work? The database, its safety copies, reports and "
                     "exports lie there."};
    const Text weg{"Das bisherige Verzeichnis %1 ist nicht zu erreichen, oder seine Datenbank "
                   "fehlt. Liegt es auf einem anderen Laufwerk, so schließen Sie es an, brechen "
                   "Sie ab, und starten Sie neu.",
                   "The former directory %1 cannot be reached, or its database is missing. If it "
                   "lies on another drive, connect that, cancel, and start again."};
    auto *text = new QLabel((fort.isEmpty() ? QString() : inSprache(weg).arg(fort) + "\n\n") +
                            inSprache(frage));
    text->setWordWrap(true);
    setSchrift(text, 12);
    text->setMinimumSize(breite, text->heightForWidth(breite));
    auto *name = new QLabel(inSprache({"&Verzeichnis:", "&Directory:"}));
    name->setBuddy(mPfad);
    mPfad->setObjectName("txtPfad");
    mPfad->setMinimumWidth(340);
    auto *suche = knopf("pbSuchen", {"&Suchen ...", "&Search ..."});
    suche->setAutoDefault(false);
    mBefund->setObjectName("lbBefund");
    mBefund->setWordWrap(true);
    mBefund->setMinimumHeight(2 * mBefund->fontMetrics().lineSpacing());
    mBefund->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto *ab = knopf("pbexit", {"&Abbrechen", "&Cancel"});
    mOk->setDefault(true);

    auto *zeile = new QHBoxLayout;
    zeile->setSpacing(8);
    zeile->addWidget(name);
    zeile->addWidget(mPfad, 1);
    zeile->addWidget(suche);
    auto *knöpfe = new QHBoxLayout;
    knöpfe->setSpacing(8);
    knöpfe->addStretch();
    knöpfe->addWidget(mOk);
    knöpfe->addWidget(ab);
    auto *alles = new QVBoxLayout(this);
    alles->setContentsMargins(24, 24, 24, 24);
    alles->setSpacing(16);
    alles->addWidget(kopf);
    alles->addWidget(text);
    alles->addLayout(zeile);
    alles->addWidget(mBefund);
    alles->addStretch();
    alles->addLayout(knöpfe);

    connect(mPfad, &QLineEdit::textChanged, this, [this] { befundZeigen(); });
    connect(suche, &QPushButton::clicked, this, [this] { suchen(); });
    connect(mOk, &QPushButton::clicked, this, &QDialog::accept);
    connect(ab, &QPushButton::clicked, this, &QDialog::reject);
    befundZeigen();
    mPfad->setFocus();
    mPfad->selectAll();
}

QString Verzeichnisfrage::verzeichnis() const {
    QString pfad = QDir::fromNativeSeparators(mPfad->text().trimmed());
    if (pfad == "~" || pfad.startsWith("~/"))
        pfad = pfad.mid(2);
    else if (pfad.isEmpty())
        return {};
    return QDir::cleanPath(QDir::home().absoluteFilePath(pfad));
}

void Verzeichnisfrage::suchen() {
    const QString gewählt = QFileDialog::getExistingDirectory(
        this, inSprache({"Arbeitsverzeichnis", "Working Directory"}), verzeichnis());
    if (!gewählt.isEmpty())
        mPfad->setText(QDir::toNativeSeparators(gewählt));
}

void Verzeichnisfrage::befundZeigen() {
    const Befund befund = verzeichnisBefund(verzeichnis());
    mBefund->setText(inSprache(worte(befund)));
    mOk->setEnabled(befund < Befund::KeinVerzeichnis);
}
