#include "dialogs/FormFields.h"

#include <algorithm>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>

namespace {

/// A colour patch on the screen's own pixels; without a colour an empty one, crossed out.
QIcon ColorPatch(const QColor& color, const QWidget* button) {
    const int side = button->style()->pixelMetric(QStyle::PM_ButtonIconSize, nullptr, button);
    const QSize size(side, side);
    const qreal ratio = button->devicePixelRatioF();
    QPixmap patch(size * ratio);
    patch.setDevicePixelRatio(ratio);
    patch.fill(Qt::transparent);
    QPainter painter(&patch);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF edge = QRectF(QPointF(0, 0), QSizeF(size)).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(button->palette().color(QPalette::Mid));
    if (color.isValid()) {
        painter.setBrush(color);
        painter.drawRect(edge);
    } else {
        painter.drawRect(edge);
        painter.drawLine(edge.bottomLeft(), edge.topRight());
    }
    painter.end();
    return QIcon(patch);
}

} // namespace

QString FieldText(const QLineEdit* field) {
    return field->text();
}

QString FieldText(const QComboBox* field) {
    return field->currentText();
}

void NamePartsOf(QComboBox& combo) {
    const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&combo);
    if (!face)
        return;
    const QString name = face->text(QAccessible::Name);
    combo.view()->setAccessibleName(name);
    if (combo.lineEdit())
        combo.lineEdit()->setAccessibleName(name);
}

void SetWholeText(QLineEdit* field, const QString& text) {
    field->setMaxLength(std::max(field->maxLength(), static_cast<int>(text.size())));
    field->setText(text);
}

void SetWholeText(QComboBox* field, const QString& text) {
    SetWholeText(field->lineEdit(), text);
}

void PrepareComboBoxes(QWidget& form) {
    for (QComboBox* combo : form.findChildren<QComboBox*>()) {
        combo->setCompleter(nullptr);
        combo->setCurrentIndex(-1);
        combo->clearEditText();
        NamePartsOf(*combo);
    }
}

void ShowBrowseIcon(QAbstractButton* button) {
    button->setIcon(button->style()->standardIcon(QStyle::SP_DirOpenIcon, nullptr, button));
}

void ShowColorIcon(QAbstractButton* button, const QString& text) {
    const QString name = text.trimmed();
    button->setIcon(ColorPatch(QColor::isValidColor(name) ? QColor(name) : QColor(), button));
}
