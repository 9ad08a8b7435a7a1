#include "equipment/screens/model_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "equipment/screens/column_widths.h"
#include "equipment/screens/find_label.h"
#include "equipment/screens/model_grid.h"
#include "equipment/screens/model_head.h"

namespace tendo {
namespace {

constexpr int narrowest = 24;

QString Q(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

ModelView::ModelView(ModelSelection& selection, int tab, QWidget* parent)
    : QTableView(parent), selection_(selection), tab_(tab) {
    setObjectName(Q(ModelTabAt(tab).gridName));
    setAccessibleName(Q(ModelTabAt(tab).kind));
    if (!selection.IsVisible(tab)) return;  // a grid that nobody will see stays bare
    grid_ = new ModelGrid(selection, tab, this);
    head_ = new ModelHead(this);
    PrepareLook();
    setModel(grid_);
    Connect();
}

void ModelView::PrepareLook() {
    setProperty("models", true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 12);
    setHorizontalHeader(head_);
    head_->setMinimumSectionSize(narrowest);
}

void ModelView::Connect() {
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& now) {
                if (!showing_) Q_EMIT RowChanged(RowOf(now));
            });
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT RowClicked(RowOf(index)); });
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT RowChosen(RowOf(index)); });
    connect(head_, &QHeaderView::sectionClicked, this, &ModelView::SortBy);
    connect(head_, &QHeaderView::sectionResized, this, [this](int column) {
        // The last column takes what room is left.
        if (!showing_ && column < grid_->columnCount() - 1) ownWidths_ = true;
    });
}

int ModelView::RowOf(const QModelIndex& index) const {
    return selection_.RowAt(tab_, index.row());
}

void ModelView::Refill(bool otherDatabase) {
    EndFind();
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        grid_->Reset([] {});
        if (otherDatabase) widthsFitted_ = false;
        ApplyWidths();
    }
    ShowSorting();
    ShowCurrentRow();
}

/// The user's widths; else such that headings and first rows fit.
void ModelView::ApplyWidths() {
    if (ownWidths_ || widthsFitted_) return;
    ownWidths_ = ApplyStoredWidths(*this, WidthsName());
    if (ownWidths_) return;
    const std::vector<int> widths = grid_->FittingWidths(font(), *head_);
    for (std::size_t column = 0; column < widths.size(); ++column)
        setColumnWidth(static_cast<int>(column), widths[column]);
    widthsFitted_ = grid_->rowCount() > 0;
}

void ModelView::KeepWidths() const {
    if (ownWidths_) StoreWidths(*this, WidthsName());
}

std::string ModelView::WidthsName() const {
    return objectName().toStdString() + "Widths";
}

void ModelView::ShowCurrentRow() {
    const int place = selection_.PlaceOf(tab_, selection_.CurrentRow(tab_));
    const QModelIndex index = grid_->index(place, 0);
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        setCurrentIndex(index);
    }
    if (index.isValid()) scrollTo(index);
}

QString ModelView::Sorting() const {
    const auto& sort = selection_.Sorting(tab_);
    if (!sort) return {};
    const QString heading = Q(selection_.ColumnHeading(tab_, sort->column));
    return "by " + heading + (sort->descending ? ", from the highest" : "");
}

void ModelView::ShowSorting() {
    const auto& sort = selection_.Sorting(tab_);
    head_->ShowSort(sort ? sort->column : -1, sort && sort->descending);
}

void ModelView::SortBy(int column) {
    const Qt::CursorShape shape = cursor().shape();
    setCursor(Qt::WaitCursor);
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        grid_->Reset([&] { selection_.SortByColumn(tab_, column); });
    }
    setCursor(shape);
    ShowSorting();
    ShowCurrentRow();
    Q_EMIT SortingChanged();
}

/// Home and End go to the first and the last row; to the sides the grid scrolls, for its current
/// column is always the first.
QModelIndex ModelView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    switch (action) {
        case MoveHome:
            return grid_->index(0, 0);
        case MoveEnd:
            return grid_->index(grid_->rowCount() - 1, 0);
        case MoveLeft:
            horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
            return currentIndex();
        case MoveRight:
            horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
            return currentIndex();
        default:
            return QTableView::moveCursor(action, modifiers);
    }
}

void ModelView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const int row = selection_.CurrentRow(tab_);
    const QString typed = Typed();
    const bool finding = !typed.isEmpty();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (row >= 0) Q_EMIT RowChosen(row);
    } else if (key == Qt::Key_Space && finding) {
        Find(typed + " ");
    } else if (key == Qt::Key_Space) {
        if (row >= 0) Q_EMIT RowClicked(row);
    } else if (key == Qt::Key_Backspace && finding) {
        Find(typed.chopped(1));
    } else if (key == Qt::Key_Escape && finding) {
        EndFind();
    } else {
        QTableView::keyPressEvent(event);
    }
}

QString ModelView::Typed() const {
    return lblFind_ ? lblFind_->Typed() : QString();
}

void ModelView::keyboardSearch(const QString& text) {
    Find(Typed() + text);
}

/// Finds as one types: goes to the next model whose number begins with the text, else holds it.
void ModelView::Find(const QString& text) {
    if (!lblFind_) {
        lblFind_ = new FindLabel(this);
        lblFind_->setObjectName(objectName().replace("grd", "lblFind"));
    }
    if (text.isEmpty()) return EndFind();
    const bool found = selection_.FindTyped(tab_, text.toStdString());
    lblFind_->Show(text, found, viewport()->geometry());
    if (found) Q_EMIT RowChanged(selection_.CurrentRow(tab_));
}

void ModelView::EndFind() {
    if (lblFind_) lblFind_->End();
}

void ModelView::focusOutEvent(QFocusEvent* event) {
    EndFind();
    QTableView::focusOutEvent(event);
}

void ModelView::resizeEvent(QResizeEvent* event) {
    const QScopedValueRollback<bool> showing(showing_, true);
    QTableView::resizeEvent(event);
    if (lblFind_) lblFind_->Place(viewport()->geometry());
}

}  // namespace tendo
