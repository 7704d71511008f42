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

/// A square picture on the screen's own pixels, as a button shows them.
template <typename Draw> QIcon Picture(const QWidget* button, Draw draw) {
    const int side = button->style()->pixelMetric(QStyle::PM_ButtonIconSize, nullptr, button);
    const QSize size(side, side);
    const qreal ratio = button->devicePixelRatioF();
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter, QRectF(QPointF(0, 0), QSizeF(size)).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.end();
    return QIcon(picture);
}

/// A colour patch; without a colour an empty one, crossed out.
QIcon ColorPatch(const QColor& color, const QWidget* button) {
    return Picture(button, [&](QPainter& painter, const QRectF& edge) {
        painter.setPen(button->palette().color(QPalette::Mid));
        if (color.isValid()) {
            painter.setBrush(color);
            painter.drawRect(edge);
        } else {
            painter.drawRect(edge);
            painter.drawLine(edge.bottomLeft(), edge.topRight());
        }
    });
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

void ShowExitIcon(QAbstractButton* button) {
    button->setIcon(Picture(button, [button](QPainter& painter, QRectF edge) {
        constexpr qreal margin = 3;
        constexpr qreal width = 2;
        edge.adjust(margin, margin, -margin, -margin);
        painter.setPen(
            QPen(button->palette().color(QPalette::ButtonText), width, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(edge.topLeft(), edge.bottomRight());
        painter.drawLine(edge.bottomLeft(), edge.topRight());
    }));
}

void ShowColorIcon(QAbstractButton* button, const QString& text) {
    const QString name = text.trimmed();
    button->setIcon(ColorPatch(QColor::isValidColor(name) ? QColor(name) : QColor(), button));
}
