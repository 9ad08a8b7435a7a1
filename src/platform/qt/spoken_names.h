#pragma once

class QWidget;

namespace tendo {

/// Names the controls of a screen for those who hear it: fields without a name of their own by
/// their labels, and controls of one name apart: "Model" on the cards "Cooling" and "Heating", or
/// on two pages of a tab control, become "Cooling model" and "Heating model".
void NameControls(QWidget* screen);

}  // namespace tendo
