#pragma once

#include <QPointF>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/print/text_measurer.h"

class QPainter;

namespace tendo {

/// Draws texts from letters of which each pair of a font was shaped once: where a document goes
/// into a file, shaping every text anew takes a quarter of the time. Words stand where the layout
/// measured them, letters on whole twips. Needs a QGuiApplication.
class LetterSetter {
  public:
    LetterSetter();
    ~LetterSetter();
    LetterSetter(const LetterSetter&) = delete;
    LetterSetter& operator=(const LetterSetter&) = delete;

    /// Draws with the painter's pen. False, with nothing drawn, for a text that has to be shaped as
    /// a whole: beyond Latin letters, with letters that join, or with a line under or through it.
    bool Draw(QPainter& painter, QPointF baseLine, const FontSpec& font, std::string_view text);

  private:
    class FontLetters;
    FontLetters& For(const FontSpec& font);

    std::vector<std::pair<FontSpec, std::unique_ptr<FontLetters>>> fonts_;
};

}  // namespace tendo
