#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/files/ini_file_handler.h"

namespace tendo {

/// The classes of controls that have a colour of their own, in the order of the profile's keys.
enum class ControlClass {
    lblDefault,
    LblHelpCaptionText,
    Frame,
    SSCheck,
    SSOption,
    Check,
    Option,
    LblHelpCaptionBackground,
    TextText
};
inline constexpr int ControlClassCount = 9;

/// A form as the colours see it.
class ColoredForm {
  public:
    virtual ~ColoredForm() = default;
    /// Gives all controls of the class this colour (0xBBGGRR).
    virtual void SetClassColor(ControlClass controls, std::int32_t color) = 0;
};

/// The screen colours: their defaults, the current ones, and where they are kept.
class ColorHandler {
  public:
    void SaveColorsToIni() const;
    /// Reads the current colours; a missing key gives the default colour.
    void GetColorsFromIni();
    void INIFileColorSection(const std::string& section) { section_ = section; }
    void INIFileHandler(tendo::INIFileHandler* handler) { handler_ = handler; }
    tendo::INIFileHandler* INIFileHandler() const { return handler_; }
    /// Gives each control of the form the current colour of its class.
    void SetFormColorsCLASS(ColoredForm& form) const;

    /// Puts all nine default colours to one value.
    void SetAllDefaultColors(std::int32_t color) { defaults_.fill(color); }
    std::int32_t DefaultColorTextText() const { return defaults_[Index(ControlClass::TextText)]; }
    void DefaultColorTextText(std::int32_t color) {
        defaults_[Index(ControlClass::TextText)] = color;
    }
    std::int32_t DefaultColorLblHelpCaptionBackground() const {
        return defaults_[Index(ControlClass::LblHelpCaptionBackground)];
    }
    void DefaultColorLblHelpCaptionBackground(std::int32_t color) {
        defaults_[Index(ControlClass::LblHelpCaptionBackground)] = color;
    }
    std::int32_t DefaultColorFrame() const { return defaults_[Index(ControlClass::Frame)]; }
    void DefaultColorFrame(std::int32_t color) { defaults_[Index(ControlClass::Frame)] = color; }
    std::int32_t DefaultColorlblDefault() const {
        return defaults_[Index(ControlClass::lblDefault)];
    }
    void DefaultColorlblDefault(std::int32_t color) {
        defaults_[Index(ControlClass::lblDefault)] = color;
    }
    std::int32_t DefaultColorLblHelpCaptionText() const {
        return defaults_[Index(ControlClass::LblHelpCaptionText)];
    }
    void DefaultColorLblHelpCaptionText(std::int32_t color) {
        defaults_[Index(ControlClass::LblHelpCaptionText)] = color;
    }
    std::int32_t DefaultColorOption() const { return defaults_[Index(ControlClass::Option)]; }
    void DefaultColorOption(std::int32_t color) { defaults_[Index(ControlClass::Option)] = color; }
    std::int32_t DefaultColorSSCheck() const { return defaults_[Index(ControlClass::SSCheck)]; }
    void DefaultColorSSCheck(std::int32_t color) {
        defaults_[Index(ControlClass::SSCheck)] = color;
    }
    std::int32_t DefaultColorCheck() const { return defaults_[Index(ControlClass::Check)]; }
    void DefaultColorCheck(std::int32_t color) { defaults_[Index(ControlClass::Check)] = color; }
    std::int32_t DefaultColorSSOption() const { return defaults_[Index(ControlClass::SSOption)]; }
    void DefaultColorSSOption(std::int32_t color) {
        defaults_[Index(ControlClass::SSOption)] = color;
    }

    std::int32_t ColorLblHelpCaptionBackground() const {
        return colors_[Index(ControlClass::LblHelpCaptionBackground)];
    }
    void ColorLblHelpCaptionBackground(std::int32_t color) {
        colors_[Index(ControlClass::LblHelpCaptionBackground)] = color;
    }
    std::int32_t ColorFrame() const { return colors_[Index(ControlClass::Frame)]; }
    void ColorFrame(std::int32_t color) { colors_[Index(ControlClass::Frame)] = color; }
    std::int32_t ColorlblDefault() const { return colors_[Index(ControlClass::lblDefault)]; }
    void ColorlblDefault(std::int32_t color) { colors_[Index(ControlClass::lblDefault)] = color; }
    std::int32_t ColorLblHelpCaptionText() const {
        return colors_[Index(ControlClass::LblHelpCaptionText)];
    }
    void ColorLblHelpCaptionText(std::int32_t color) {
        colors_[Index(ControlClass::LblHelpCaptionText)] = color;
    }
    std::int32_t ColorOption() const { return colors_[Index(ControlClass::Option)]; }
    void ColorOption(std::int32_t color) { colors_[Index(ControlClass::Option)] = color; }
    std::int32_t ColorCheck() const { return colors_[Index(ControlClass::Check)]; }
    void ColorCheck(std::int32_t color) { colors_[Index(ControlClass::Check)] = color; }
    std::int32_t ColorSSCheck() const { return colors_[Index(ControlClass::SSCheck)]; }
    void ColorSSCheck(std::int32_t color) { colors_[Index(ControlClass::SSCheck)] = color; }
    std::int32_t ColorSSOption() const { return colors_[Index(ControlClass::SSOption)]; }
    void ColorSSOption(std::int32_t color) { colors_[Index(ControlClass::SSOption)] = color; }
    std::int32_t ColorTextText() const { return colors_[Index(ControlClass::TextText)]; }
    void ColorTextText(std::int32_t color) { colors_[Index(ControlClass::TextText)] = color; }

  private:
    static constexpr std::size_t Index(ControlClass controls) {
        return static_cast<std::size_t>(controls);
    }

    tendo::INIFileHandler* handler_ = nullptr;
    std::string section_;
    std::array<std::int32_t, ControlClassCount> defaults_{};
    std::array<std::int32_t, ControlClassCount> colors_{};
};

/// The shared instance.
ColorHandler& Colors();

/// Gives the handler its store and its nine default colours and reads the current ones; the start
/// of the program does this once.
void PrepareColors(ColorHandler& colors);

}  // namespace tendo
