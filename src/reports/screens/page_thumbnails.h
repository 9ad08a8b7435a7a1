#pragma once

#include <QListView>
#include <QTimer>

#include "platform/print/document.h"

namespace tendo {

/// The pages of a document in small, one below the other. A page is drawn when it is first seen,
/// one at a time, so that a long document blocks nothing.
class PageThumbnails : public QListView {
    Q_OBJECT
    Q_PROPERTY(int drawn READ DrawnPages)
  public:
    explicit PageThumbnails(QWidget* parent);
    ~PageThumbnails() override;

    /// The document must outlive its being shown.
    void ShowDocument(const Document* document);
    /// Marks a page, from 0, and brings it into view.
    void ShowPage(int page);
    /// How many pages have been drawn so far.
    int DrawnPages() const;
    QSize sizeHint() const override;

  Q_SIGNALS:
    void PageChosen(int page);

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    class Pages;
    class Drawing;
    void DrawNext();

    Pages* pages_;
    QTimer drawing_;
    bool showing_ = false;  // a page is shown from outside, not chosen here
};

}  // namespace tendo
