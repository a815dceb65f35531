#include "apps/configurator/Theme.h"

#include <QApplication>
#include <QPalette>

namespace configurator {
namespace {

/// The colours from which all roles of a palette are made.
struct Colours {
  QColor window;      ///< ground of windows
  QColor base;        ///< ground of lists and fields
  QColor alternate;   ///< ground of every second line
  QColor button;      ///< ground of buttons
  QColor text;        ///< everything that is read
  QColor faint;       ///< what is disabled
  QColor accent;      ///< what is selected
  QColor accentText;  ///< the text on it
  QColor link;
};

Colours ColoursOf(Theme theme) {
  if (theme == Theme::Dark) {
    return {QColor(0x2b2d30), QColor(0x1e1f22), QColor(0x25272a),
            QColor(0x3a3d41), QColor(0xdfe1e5), QColor(0x7c8088),
            QColor(0x2f65ca), QColor(0xffffff), QColor(0x6ea6ff)};
  }
  return {QColor(0xf2f3f5), QColor(0xffffff), QColor(0xf7f8fa), QColor(0xfafbfc), QColor(0x1d1f23),
          QColor(0x9a9ea6), QColor(0x2f65ca), QColor(0xffffff), QColor(0x1f5fbf)};
}

QPalette PaletteOf(const Colours& colours) {
  QPalette palette(colours.button, colours.window);
  palette.setColor(QPalette::Window, colours.window);
  palette.setColor(QPalette::Base, colours.base);
  palette.setColor(QPalette::AlternateBase, colours.alternate);
  palette.setColor(QPalette::Button, colours.button);
  palette.setColor(QPalette::ToolTipBase, colours.base);
  palette.setColor(QPalette::Highlight, colours.accent);
  palette.setColor(QPalette::HighlightedText, colours.accentText);
  palette.setColor(QPalette::Link, colours.link);
  palette.setColor(QPalette::LinkVisited, colours.link);
  palette.setColor(QPalette::PlaceholderText, colours.faint);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::ToolTipText, QPalette::BrightText}) {
    palette.setColor(role, colours.text);
    palette.setColor(QPalette::Disabled, role, colours.faint);
  }
  return palette;
}

}  // namespace

void UseTheme(Theme theme) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setPalette(PaletteOf(ColoursOf(theme)));
}

}  // namespace configurator
