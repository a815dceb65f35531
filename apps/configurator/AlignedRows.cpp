#include "apps/configurator/AlignedRows.h"

#include <QAbstractItemModel>
#include <QStringList>
#include <algorithm>

namespace configurator {
namespace {

/// How many characters `text` has; some of them take two units of a QString.
qsizetype CharactersOf(const QString& text) { return text.toUcs4().size(); }

QString TextOf(const QAbstractItemModel& model, int row, int column) {
  QString text = model.index(row, column).data().toString();
  for (QChar& character : text) {
    character = character.category() == QChar::Other_Control ? QLatin1Char(' ') : character;
  }
  return text;
}

qsizetype WidthOf(const QAbstractItemModel& model, int column) {
  qsizetype width = 0;
  for (int row = 0; row < model.rowCount(); ++row) {
    width = std::max(width, CharactersOf(TextOf(model, row, column)));
  }
  return width;
}

}  // namespace

QString AlignedRows(const QAbstractItemModel& model) {
  constexpr qsizetype gap = 2;
  QStringList lines(model.rowCount());
  qsizetype start = 0;
  for (int column = 0; column < model.columnCount(); ++column) {
    for (int row = 0; row < model.rowCount(); ++row) {
      QString& line = lines[row];
      const QString text = TextOf(model, row, column);
      if (!text.isEmpty()) {
        line += QString(start - CharactersOf(line), QLatin1Char(' ')) + text;
      }
    }
    start += WidthOf(model, column) + gap;
  }
  return lines.isEmpty() ? QString() : lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

}  // namespace configurator
