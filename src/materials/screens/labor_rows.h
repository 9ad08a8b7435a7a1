#pragma once

#include <QWidget>
#include <array>

#include "materials/labor_page.h"
#include "platform/qt/fields.h"

class QGridLayout;
class QLabel;

namespace tendo {

struct LaborColumn;

/// The 15 lines of a labor page with their headings and sums, bound to the page: what is typed goes
/// there, leaving a field commits it there, and what the page changes shows.
class LaborRows : public QWidget {
    Q_OBJECT
  public:
    /// The page must live as long as the rows.
    LaborRows(LaborPage& page, QWidget* parent);
    ~LaborRows() override;

    TextField* At(int line, LaborField field) const;

  Q_SIGNALS:
    /// The user typed into a field.
    void Edited();

  private:
    void AddHeadings(QGridLayout* grid);
    void AddLine(QGridLayout* grid, int line);
    void AddSums(QGridLayout* grid);
    TextField* AddField(int line, const LaborColumn& column);
    void ChainLines();
    void TextChanged(int line, LaborField field);
    void Commit(int line, LaborField field);
    void WantHelp(int line, const LaborColumn& column);
    void WantColumnHelp(const LaborColumn& column);
    void ShowSums();

    LaborPage& page_;
    std::array<std::array<TextField*, LaborFieldCount>, LaborLineCount> fields_{};
    std::array<int, LaborFieldCount> headingWidths_{};
    QLabel* lblCostSum_ = nullptr;
    QLabel* lblPriceSum_ = nullptr;
    const TextField* committed_ = nullptr;  // while its commit runs
};

}  // namespace tendo
