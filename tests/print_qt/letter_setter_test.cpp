#include "platform/qt/letter_setter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <functional>

#include "platform/qt/text_measurer_qt.h"

namespace tendo {
namespace {

constexpr int Width = 3600, Height = 320, BaseLine = 220;  // twips, a pixel each

class SetLetters : public testing::Test {
  protected:
    static QImage Drawn(const std::function<void(QPainter&)>& draw) {
        QImage image(Width, Height, QImage::Format_Grayscale8);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::black);
        draw(painter);
        return image;
    }
    static bool IsDark(const QImage& image, int x, int y) {
        return image.constScanLine(y)[x] < 0x80;
    }
    static int DarkPixels(const QImage& image) {
        int count = 0;
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < Width; ++x)
                if (IsDark(image, x, y)) ++count;
        return count;
    }
    static bool IsDarkNearby(const QImage& image, int x, int y) {
        for (int row = std::max(y - 1, 0); row <= std::min(y + 1, Height - 1); ++row)
            for (int column = std::max(x - 1, 0); column <= std::min(x + 1, Width - 1); ++column)
                if (IsDark(image, column, row)) return true;
        return false;
    }
    /// Dark pixels of one that are farther than a pixel from any dark one of the other.
    static int Strays(const QImage& one, const QImage& other) {
        int count = 0;
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < Width; ++x)
                if (IsDark(one, x, y) && !IsDarkNearby(other, x, y)) ++count;
        return count;
    }
    bool Draw(const char* text, const FontSpec& font = {}) {
        bool isDrawn = false;
        set_ = Drawn([&](QPainter& painter) {
            isDrawn = setter.Draw(painter, QPointF(20, BaseLine), font, text);
        });
        return isDrawn;
    }

    LetterSetter setter;
    QImage set_;
};

TEST_F(SetLetters, AWordLooksAsIfShapedAsAWhole) {
    for (const char* word : {"AVAIL-1171", "Yo,Te.LT", "Résidence", "$1,170.00"})
        for (const bool bold : {false, true}) {
            FontSpec font;
            font.bold = bold;
            ASSERT_TRUE(Draw(word, font)) << word;
            const QImage shaped = Drawn([&](QPainter& painter) {
                painter.setFont(DocumentFont(font));
                painter.drawText(QPointF(20, BaseLine), QString::fromUtf8(word));
            });
            ASSERT_GT(DarkPixels(shaped), 1000) << word;
            EXPECT_EQ(Strays(set_, shaped), 0) << word;
            EXPECT_EQ(Strays(shaped, set_), 0) << word;
        }
}

TEST_F(SetLetters, AWordStandsWhereTheLayoutMeasuredIt) {
    QtTextMeasurer measurer;
    const FontSpec font;
    const double before = measurer.Width(font, "Tax,") + measurer.Width(font, " ");
    ASSERT_TRUE(Draw("Tax, AT"));
    const QImage second = Drawn([&](QPainter& painter) {
        ASSERT_TRUE(setter.Draw(painter, QPointF(20 + before, BaseLine), font, "AT"));
    });
    EXPECT_EQ(Strays(second, set_), 0);
}

TEST_F(SetLetters, WhatNeedsMoreIsLeftToTheShaper) {
    FontSpec underlined;
    underlined.underline = true;
    EXPECT_FALSE(Draw("Total", underlined));
    FontSpec struck;
    struck.strike = true;
    EXPECT_FALSE(Draw("Total", struck));
    for (const char* text : {"Ωmega", "Дом", "שלום", "e\xCC\x81",
                             "a\xC2\xAD"
                             "b",
                             "a\xC2", "a\tb"}) {
        EXPECT_FALSE(Draw(text)) << text;
        EXPECT_EQ(DarkPixels(set_), 0) << text;
    }
}

TEST_F(SetLetters, AnEmptyTextIsDrawnAtOnce) {
    EXPECT_TRUE(Draw(""));
    EXPECT_EQ(DarkPixels(set_), 0);
}

}  // namespace
}  // namespace tendo
