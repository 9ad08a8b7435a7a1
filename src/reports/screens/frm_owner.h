#pragma once

#include <array>

#include "platform/qt/form.h"

namespace tendo {

class TextField;

/// The installation's own company, which banner and running header name.
class FrmOwner : public Form {
    Q_OBJECT
  public:
    /// `giveUp`: the caption of the button that leaves all as it was.
    explicit FrmOwner(const QString& giveUp);

  private:
    void Store();

    std::array<TextField*, 5> fields_{};
};

/// Asks for the company once, when a report is wanted and none is kept.
void AskForOwnerOnce();
/// Keeps the question away (scripts).
void NeverAskForOwner();

}  // namespace tendo
