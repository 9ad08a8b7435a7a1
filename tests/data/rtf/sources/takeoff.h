/** @file
 *  The takeoff of one house.
 */

/// One line of a takeoff: "material" stands for sheet metal, pipe & fittings.
struct TakeoffLine {
    /** How many pieces, at most 9999. */
    int quantity;
    /** Price of one in dollars, e.g. $12.50 {net}. */
    double price;
};

/// Adds up 100 % of the lines; returns -1 when there is none.
double TotalOf(const TakeoffLine* lines, int count);
