#pragma once

#include <QProxyStyle>

namespace tendo {

/// Fusion, with the title bars of the screens inside the main window drawn flat in the theme's
/// colours.
class TendoStyle : public QProxyStyle {
    Q_OBJECT
  public:
    TendoStyle();
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    /// The arrow of a bar that is longer than its window comes from the theme's own icons; the
    /// style would have every plug-in for pictures loaded for it.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
};

}  // namespace tendo
