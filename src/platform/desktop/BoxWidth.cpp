#include "platform/desktop/BoxWidth.h"

#include <algorithm>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QScreen>
#include <QSpacerItem>
#include <QStyle>

namespace {

/// Icon, minimise, maximise, close: what desktops put beside a title.
constexpr int titleButtons = 4;
constexpr int lineLength = 100;

} // namespace

int TitleWidth(const QString& title, const QWidget& window) {
    if (title.isEmpty())
        return 0;
    QFont font = QFontDatabase::systemFont(QFontDatabase::TitleFont);
    // Many desktops draw titles bold and tell nobody.
    font.setBold(true);
    const QStyle& style = *window.style();
    const int button = style.pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    const int edge = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window);
    return QFontMetrics(font).horizontalAdvance(title) + titleButtons * button + 2 * edge;
}

void WidenToTitle(QMessageBox& box) {
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (!grid)
        return;
    const QMargins margins = grid->contentsMargins();
    const int width = std::min(TitleWidth(box.windowTitle(), box), box.screen()->availableSize().width());
    grid->addItem(new QSpacerItem(std::max(width - margins.left() - margins.right(), 0), 0,
                                  QSizePolicy::Minimum, QSizePolicy::Fixed),
                  grid->rowCount(), 0, 1, grid->columnCount());
}

int LineWidth(const QWidget& window) {
    return std::min(window.fontMetrics().averageCharWidth() * lineLength,
                    window.screen()->availableSize().width() * 9 / 10);
}
