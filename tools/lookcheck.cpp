#include "lookcheck.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

namespace lookcheck {

namespace {

QSize sizeOf(const QFont &font, const QString &text) {
    return QFontMetrics(font).size(Qt::TextShowMnemonic, text);
}

QFont bold(QFont font) {
    font.setBold(true);
    return font;
}

/// Whether the words fit into the place that their widget has for them.
bool fits(const QWidget &widget, const QFont &font, const QString &text, QSize place) {
    const QSize needed = sizeOf(font, text);
    return text.isEmpty() ||
           (needed.width() <= place.width() && needed.height() <= place.height()) ||
           (widget.visibleRegion().isEmpty() && !place.isEmpty());
}

QString cutCaption(const QWidget &widget) {
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        const QSize place = label->contentsRect().size();
        const bool fit = label->wordWrap()
                             ? label->heightForWidth(label->width()) <= label->height()
                             : fits(*label, label->font(), label->text(), place);
        return fit ? QString() : label->text();
    }
    if (const auto *button = qobject_cast<const QPushButton *>(&widget)) {
        const bool fit =
            fits(*button, bold(button->font()), button->text(), button->size() - QSize(8, 4));
        return fit ? QString() : button->text();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->width() >= button->sizeHint().width() ? QString() : button->text();
    if (const auto *group = qobject_cast<const QGroupBox *>(&widget))
        return fits(*group, bold(group->font()), group->title(), group->size()) ? QString()
                                                                                : group->title();
    if (const auto *box = qobject_cast<const QComboBox *>(&widget); box && !box->isEditable())
        return fits(*box, box->font(), box->currentText(), box->size() - QSize(28, 0))
                   ? QString()
                   : box->currentText();
    if (const auto *box = qobject_cast<const QLineEdit *>(&widget); box && box->isReadOnly())
        return fits(*box, box->font(), box->text(), box->size() - QSize(4, 0)) ? QString()
                                                                               : box->text();
    return {};
}

QStringList cutHeads(const QTableView &table) {
    QStringList result;
    const QHeaderView &header = *table.horizontalHeader();
    for (int column = 0; header.isVisible() && column < header.count(); ++column) {
        const QString head = table.model()->headerData(column, Qt::Horizontal).toString();
        const QSize place(header.sectionSize(column) - 4, header.height());
        if (!header.isSectionHidden(column) && !fits(header, header.font(), head, place))
            result += head;
    }
    return result;
}

} // namespace

QStringList faults(const QWidget &window) {
    QStringList result;
    if (window.width() > widest || window.height() > highest)
        result += QString("%1 × %2 px").arg(window.width()).arg(window.height());
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisibleTo(&window))
            continue;
        if (const QString caption = cutCaption(*widget); !caption.isEmpty())
            result += widget->objectName() + ": " + caption;
        if (const auto *table = qobject_cast<const QTableView *>(widget)) {
            for (const QString &head : cutHeads(*table))
                result += widget->objectName() + ": " + head.simplified();
        }
    }
    return result;
}

} // namespace lookcheck
