#include "toolkit/LayoutSize.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

namespace qv {

namespace {

constexpr LayoutSize pixelMark = 0x40000000;
constexpr LayoutSize markBits = 0xFF000000;
constexpr int mostPixels = 0x00FFFFFF;
constexpr LayoutSize wholeShare = 100;
constexpr int leastLabelGap = 2;

/// Measures single controls as they measure themselves, without making any.
class Ruler {
 public:
  explicit Ruler(const QWidget* widget)
      : m_widget(widget),
        m_style(widget ? widget->style() : QApplication::style()),
        m_font(widget ? widget->fontMetrics() : QFontMetrics(QApplication::font())) {}

  int Line() const { return m_font.height(); }

  int Button() const {
    const int icon = m_style->pixelMetric(QStyle::PM_ButtonIconSize, nullptr, m_widget);
    return Height<QStyleOptionButton>(QStyle::CT_PushButton, std::max(Line(), icon));
  }

  int CheckBox() const {
    // As for a disabled one, whose caption may have a shadow.
    const QRect caption = m_style->itemTextRect(m_font, {}, 0, false, QStringLiteral("X"));
    return Height<QStyleOptionButton>(QStyle::CT_CheckBox, caption.height());
  }

  int LineEdit() const {
    constexpr int margins = 2;
    return Height<QStyleOptionFrame>(QStyle::CT_LineEdit, Line() + margins);
  }

  int ComboBox() const {
    constexpr int margins = 2;
    const int icon = m_style->pixelMetric(QStyle::PM_SmallIconSize, nullptr, m_widget);
    return Height<QStyleOptionComboBox>(QStyle::CT_ComboBox, std::max(Line(), icon) + margins);
  }

 private:
  template <class Option>
  int Height(QStyle::ContentsType type, int content) const {
    Option option;
    if (m_widget) {
      option.initFrom(m_widget);
    }
    option.fontMetrics = m_font;
    if constexpr (std::is_same_v<Option, QStyleOptionFrame>) {
      option.lineWidth = m_style->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, m_widget);
    }
    return m_style->sizeFromContents(type, &option, QSize(content, content), m_widget).height();
  }

  const QWidget* m_widget;
  const QStyle* m_style;
  QFontMetrics m_font;
};

}  // namespace

LayoutMetrics MetricsOf(const QWidget* widget) {
  const Ruler ruler(widget);
  const int standard = ruler.Line() * 3 / 5;
  const int button = ruler.Button();
  return {.standard = standard,
          .button = button,
          .label = std::max(ruler.Line(), ruler.CheckBox()),
          .edit = std::max(ruler.LineEdit(), ruler.ComboBox()),
          .wide = button,
          .labelGap = std::max(leastLabelGap, standard / 4)};
}

LayoutSize PixelSize(int pixels) {
  return pixelMark | static_cast<LayoutSize>(std::clamp(pixels, 0, mostPixels));
}

bool IsShare(LayoutSize size) { return size <= wholeShare; }

int GapPixels(LayoutSize size, const LayoutMetrics& metrics) {
  return size == LayoutSizeStandard ? metrics.standard : ItemPixels(size, metrics);
}

int ItemPixels(LayoutSize size, const LayoutMetrics& metrics) {
  switch (size) {
    case LayoutSizeStandard:
      return metrics.button;
    case LayoutSizeLabel:
      return metrics.label;
    case LayoutSizeEdit:
      return metrics.edit;
    case LayoutSizeWide:
      return metrics.wide;
    case LayoutSizeLabelGap:
      return metrics.labelGap;
    default:
      return (size & markBits) == pixelMark ? static_cast<int>(size & ~markBits) : 0;
  }
}

}  // namespace qv
