#pragma once

namespace tendo {

/// Adds up the cost and the price of all 15 labor lines of the project, those without hours too:
/// the cost becomes the Labor row's dealer cost and its override, the price its sale price.
/// RuntimeError 6 beyond the range of a float.
void SumLabor();

/// All 15 labor lines of the project to 0, their descriptions to blank.
void ClearProjectLabor();

/// What closing the labor takeoff does to the project's prices: `SumLabor`, then the list base of
/// the Labor row, which is its cost and not its price, and the total list base. The
/// project counts as changed when one of these figures did.
void CloseLaborTakeoff();

}  // namespace tendo
