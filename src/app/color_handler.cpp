#include "app/color_handler.h"

namespace tendo {
namespace {

/// The profile's key of each class, by its number.
constexpr const char* colorKeys[ControlClassCount] = {
    "lblDefault", "lblHelpCaptionText",       "Frame",    "SSCheck", "SSOption", "Check",
    "Option",     "lblHelpCaptionBackground", "TextColor"};

constexpr std::int32_t paleYellow = 0xC0FFFF;

}  // namespace

void ColorHandler::SaveColorsToIni() const {
    for (std::size_t i = 0; i < ControlClassCount; ++i)
        handler_->MyWriteAppProfileString(section_, colorKeys[i], std::to_string(colors_[i]));
}

void ColorHandler::GetColorsFromIni() {
    for (std::size_t i = 0; i < ControlClassCount; ++i)
        colors_[i] = handler_->MyGetAppProfileLong(section_, colorKeys[i], defaults_[i]);
}

void ColorHandler::SetFormColorsCLASS(ColoredForm& form) const {
    for (std::size_t i = 0; i < ControlClassCount; ++i)
        form.SetClassColor(static_cast<ControlClass>(i), colors_[i]);
}

ColorHandler& Colors() {
    static ColorHandler colors;
    return colors;
}

void PrepareColors(ColorHandler& colors) {
    colors.INIFileHandler(&Ini());
    colors.INIFileColorSection("Colors");
    colors.SetAllDefaultColors(0);
    colors.DefaultColorLblHelpCaptionBackground(paleYellow);
    colors.GetColorsFromIni();
}

}  // namespace tendo
