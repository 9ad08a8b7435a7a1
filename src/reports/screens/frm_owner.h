#pragma once

#include <array>

#include "platform/qt/form.h"

namespace tendo {

class TextField;

/// The installation's own company, which banner and running header name.
class FrmOwner : public Form {
    Q_OBJECT
  public:
    FrmOwner();

  private:
    void Store();

    std::array<TextField*, 5> fields_{};
};

/// Asks for the company once, when a report is wanted and none is kept.
void AskForOwnerOnce();
/// Keeps the question away (scripts).
void NeverAskForOwner();

}  // namespace tendo
