#include "builders/tables/Grid.h"

#include "builders/tables/GridModel.h"
#include "platform/values/Twips.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace {

constexpr int FirstSize = 2;
constexpr int FirstWidth = 960; ///< twips
constexpr int LeastWidth = 10;  ///< pixels

/// A cell with the lines at its right and below it. Those that the desktop's style draws can't be told from a
/// dark ground, and empty cells would not be seen.
class LinedCell final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        painter->setPen(option.palette.color(QPalette::PlaceholderText));
        painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }
};

} // namespace

Grid::Grid(QWidget* parent)
    : QTableView(parent), model_(new GridModel(GridCells(FirstSize, FirstSize), this)) {
    horizontalHeader()->hide();
    verticalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(LeastWidth);
    horizontalHeader()->setDefaultSectionSize(Twips::ToPixels(FirstWidth));
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setShowGrid(false);
    setItemDelegate(new LinedCell(this));
    setModel(model_);
    setCurrentIndex(model_->index(0, 0));
}

const GridCells& Grid::Cells() const {
    return model_->Cells();
}

template <typename Change> bool Grid::Apply(Change change) {
    changing_ = true;
    const bool done = change();
    setCurrentIndex(model_->index(Row(), Col()));
    changing_ = false;
    return done;
}

bool Grid::SetRows(int rows) {
    return Apply([&] { return model_->SetRows(rows); });
}

bool Grid::SetCols(int cols) {
    return Apply([&] { return model_->SetCols(cols); });
}

bool Grid::SetRow(int row) {
    return Apply([&] { return model_->SetRow(row); });
}

bool Grid::SetCol(int col) {
    return Apply([&] { return model_->SetCol(col); });
}

bool Grid::SetText(const QString& text) {
    return model_->SetText(text);
}

void Grid::Take(const GridCells& cells) {
    Apply([&] {
        model_->Take(cells);
        return true;
    });
}

int Grid::ColWidth(int index) const {
    return Twips::FromPixels(columnWidth(index));
}

bool Grid::SetColWidth(int index, int twips) {
    if (index < 0 || index >= Cols())
        return false;
    setColumnWidth(index, Twips::ToPixels(twips));
    return true;
}

void Grid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (changing_ || !current.isValid())
        return;
    model_->SetRow(current.row());
    model_->SetCol(current.column());
}

void Grid::mousePressEvent(QMouseEvent* event) {
    QTableView::mousePressEvent(event);
    pressed_ = event->button() == Qt::LeftButton;
}

void Grid::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    const bool click = pressed_ && event->button() == Qt::LeftButton &&
                       viewport()->rect().contains(event->position().toPoint());
    pressed_ = false;
    if (click)
        emit Click();
}

void Grid::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_F2:
        event->accept();
        emit Click();
        break;
    default:
        QTableView::keyPressEvent(event);
    }
}
