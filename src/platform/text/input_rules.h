#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tendo {

/// What a text field turns typed letters into.
enum class CaseRestriction { None, Upper, Lower };

/// The object that shows the range and the units of the field in focus, in the status bar; empty
/// texts when a field is left.
struct InputApplication {
    std::function<void(const std::string& range)> ShowRange;
    std::function<void(const std::string& units)> ShowUnits;
};

/// What may be typed into a field. One object may serve many fields.
struct InputValidator {
    bool NumberField = false;  // numeric rule; otherwise the text rule
    double MinNumberValue = 0;
    double MaxNumberValue = 0;
    int NumberOfDecimalPlaces = 0;
    int MaxTextLength = 32767;        // characters
    std::string AllowableCharacters;  // empty: every character
    tendo::CaseRestriction CaseRestriction = tendo::CaseRestriction::None;
    bool AllowOnlyComboFormListItems = false;
    InputApplication* OwnerApplication = nullptr;  // not owned
    std::string Units;                             // "dollars"

    /// "0.00 to 100.00"; empty for a text field.
    std::string Range() const;
};

/// A field's text on both sides of its selection (or caret); the selection is what a key replaces.
struct EntryText {
    std::u32string left;
    std::u32string right;
};

constexpr char32_t BackspaceKey = 8;

/// The character that enters the field for this key, or nothing when the key is dropped. `list`:
/// the values that may be typed when the validator allows only those; the key must go on in the
/// beginning of one of them and takes its spelling.
std::optional<char32_t> FilterKey(const InputValidator& validator, const EntryText& entry,
                                  char32_t key, const std::vector<std::string>& list = {});

/// Keys of fields that have no validator: digits and backspace; in a money field also one point.
/// `rest` is the text without its selection.
bool PlainNumberKeyPasses(char32_t key, bool money, std::u32string_view rest);

/// What such a field shows when it is left: its number, 0 for what is none, in its format.
std::string PlainNumberOnLeave(std::string_view text, std::string_view picture = "###0.00");

/// Keys that may move the focus.
enum class MoveKey { Left, Up, Right, Down, Return };

/// Where the caret of a field stands, in characters.
struct CaretState {
    bool textField = true;
    int caret = 0;
    int length = 0;
    int selected = 0;
};

/// True when the key leaves the field; otherwise it moves the caret. A wholly selected text counts
/// as standing at both of its ends.
bool KeyLeavesField(MoveKey key, const CaretState& state);

/// The step within a control array: 1 to the next element, -1 to the one before, 0 out of the
/// array.
int StepInArray(MoveKey key, bool horizontal, bool nextIndexOnReturn);

/// Name and index of a control array's element: "txtItemQty(3)"; nothing for any other name.
struct ArrayName {
    std::string array;
    int index = 0;
};
std::optional<ArrayName> ReadArrayName(std::string_view name);

/// A font for figures that may outgrow their field.
struct FittingFont {
    std::string family;
    int size = 0;  // points
};

/// The largest font in which the text fits: "MS Sans Serif" down to 8 points, "Small Fonts" below,
/// never under 5. `textWidth` measures the text in a font.
FittingFont FontForWidth(int width, int largestSize,
                         const std::function<int(const FittingFont&)>& textWidth);

}  // namespace tendo
