// The look of the program: its colours, light and dark, its sizes of type, and the style that
// paints the controls. Everything that is painted besides takes its colours and its type from here.
// docs/look.md shows the states.
#pragma once

#include <QColor>
#include <QFont>

class QApplication;
class QWidget;

namespace platform {

struct Farben {
    QColor fenster, feld; ///< grounds: a window; what can be typed into or pressed
    QColor text, blass, gesperrt;
    QColor kante, linie; ///< edge of a control; lines of groups and tables, decoration alone
    QColor akzent;       ///< keyboard, default button, motor
    QColor auswahl;      ///< ground of the chosen row
    QColor gut, gutGrund, schlecht, schlechtGrund, offen, offenGrund; ///< verdicts
};
/// The colours in force.
const Farben &farben();

// The system's own, the same in light and dark; the text on both is black.
inline constexpr QRgb wartetGrund = qRgb(192, 192, 255), wartetKante = qRgb(0x3a, 0x3a, 0xb8);
inline constexpr QRgb freiGrund = qRgb(255, 224, 192), freiKante = qRgb(0xa8, 0x5a, 0);
inline constexpr QRgb alarmRot = qRgb(255, 0, 0), bereitGrün = qRgb(0, 255, 0);
/// The ground on which the bright red and the bright green are read, and a sign beside them.
inline constexpr QRgb schildGrund = qRgb(0, 0, 0), schildZeichen = qRgb(255, 255, 255);

/// Takes the style and its palette for all windows: light or dark as the system's windows are.
/// Before the first window.
void stilAnwenden(QApplication &application);
/// The same, by choice.
void stilAnwenden(bool dunkel);

/// The system's type in one of the program's sizes: 12, 14, 20, 28, 32, 40, 48 pt, or 0 for its
/// own.
QFont schrift(int punkte, bool fett = false);
void setSchrift(QWidget *widget, int punkte, bool fett = false);

/// What a label or a frame says by its colour besides. In Designer files the property "ton".
enum class Ton {
    Keiner,
    Blass, ///< second rank
    Alarm, ///< overdue: the title of a frame in red and bold, a bar in the colour of failure
    Da,    ///< a badge on dark ground, in green
    Fehlt, ///< a badge on dark ground, in red
    Tafel, ///< a frame that is a whole window: ground of a field, with an edge of its own
};
void setTon(QWidget *widget, Ton ton);

/// Open for free input, `property` of the style: tinted with black text.
void setFreiGetönt(QWidget *widget, bool offen);

} // namespace platform
