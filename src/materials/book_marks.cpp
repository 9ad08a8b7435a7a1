#include "materials/book_marks.h"

#include "platform/text/runtime_error.h"

namespace tendo {

void BookMarks::Add(std::int64_t bookmark) {
    if (!Has(bookmark) && order_.size() >= Most) ThrowError(error_number::OutOfStackSpace);
    rowMode_ = true;
    if (marked_.insert(bookmark).second) order_.push_back(bookmark);
}

void BookMarks::Leave() {
    rowMode_ = false;
    Clear();
}

void BookMarks::Clear() {
    order_.clear();
    marked_.clear();
}

}  // namespace tendo
