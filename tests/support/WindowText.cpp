#include "tests/support/WindowText.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <map>

namespace qv {
namespace {

using Controls = std::map<int, QWidget*>;

constexpr int enlargedBy = 150;
constexpr int moreThanAnyLimit = 600;

Controls ControlsOf(const QWidget& window) {
  Controls controls;
  const auto children = window.findChildren<QWidget*>();
  for (QWidget* child : children) {
    const QVariant number = child->property("controlId");
    if (number.isValid()) {
      controls[number.toInt()] = child;
    }
  }
  return controls;
}

QString Quoted(const QString& text) { return QLatin1Char('"') + text + QLatin1Char('"'); }

QString Words(const QSize& size) {
  return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString Place(const QWidget& control, const QWidget& window) {
  const QPoint at = control.mapTo(&window, QPoint());
  return QStringLiteral("at %1,%2 %3").arg(at.x()).arg(at.y()).arg(Words(control.size()));
}

/// Transparent dots are alike, whatever colour lies behind them.
QImage Comparable(const QImage& image) {
  return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// Which number a user who steps through the window with Tab gives each control.
std::map<const QWidget*, int> TabPositions(const QWidget& window) {
  std::map<const QWidget*, int> positions;
  for (QWidget* next = window.nextInFocusChain(); next != &window;
       next = next->nextInFocusChain()) {
    if ((next->focusPolicy() & Qt::TabFocus) && next->isVisibleTo(&window)) {
      positions.emplace(next, static_cast<int>(positions.size()) + 1);
    }
  }
  return positions;
}

/// Types `text` into an emptied edit, and tells what stands in it then.
QString TypedInto(QLineEdit& edit, const QString& text) {
  edit.clear();
  QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, text);
  QApplication::sendEvent(&edit, &key);
  return edit.text();
}

QString Limit(QLineEdit& edit) {
  const auto length = TypedInto(edit, QString(moreThanAnyLimit, QLatin1Char('1'))).size();
  const bool takesLetters = !TypedInto(edit, QStringLiteral("x")).isEmpty();
  return (length < moreThanAnyLimit ? QStringLiteral("limit %1").arg(length)
                                    : QStringLiteral("no limit")) +
         (takesLetters ? QString() : QStringLiteral(" digits only"));
}

class Writer {
 public:
  Writer(QDialog& window, const QDir& pictures)
      : m_window(window),
        m_pictures(pictures),
        m_controls(ControlsOf(window)),
        m_tabs(TabPositions(window)) {}

  std::vector<std::string> Lines() {
    AddWindow();
    for (const auto& [number, control] : m_controls) {
      AddControl(number, *control);
    }
    if (m_window.minimumSize() != m_window.maximumSize()) {
      const QSize opening = m_window.size();
      AddPlaces(QStringLiteral("least"), m_window.minimumSize());
      AddPlaces(QStringLiteral("enlarged"), opening + QSize(enlargedBy, enlargedBy));
    }
    AddLimits();
    return std::move(m_lines);
  }

 private:
  void Add(const QStringList& words) {
    m_lines.push_back(words.join(QLatin1Char(' ')).toStdString());
  }

  void AddWindow() {
    QStringList words{QStringLiteral("window"), Quoted(m_window.windowTitle()),
                      Words(m_window.size())};
    words += PictureWords(m_window.windowIcon(), QSize(64, 64));
    if (m_window.windowFlags() & Qt::WindowMaximizeButtonHint) {
      words += QStringLiteral("can be maximised");
    }
    Add(words);
  }

  void AddControl(int number, QWidget& control) {
    QStringList words{QString::number(number),
                      QString::fromLatin1(control.metaObject()->className())};
    words += LookOfButton(qobject_cast<QAbstractButton*>(&control));
    words += LookOfLabel(qobject_cast<QLabel*>(&control));
    if (const auto* box = qobject_cast<QGroupBox*>(&control)) {
      words += Quoted(box->title());
    }
    if (const auto* edit = qobject_cast<QLineEdit*>(&control)) {
      words += Quoted(edit->text());
    }
    Add(words + State(control));
    AddEntries(number, qobject_cast<QComboBox*>(&control));
    AddRows(number, qobject_cast<QTreeWidget*>(&control));
  }

  QStringList State(const QWidget& control) const {
    QStringList words;
    if (!control.isVisibleTo(&m_window)) {
      return {QStringLiteral("hidden")};
    }
    if (!control.isEnabled()) {
      words += QStringLiteral("disabled");
    }
    if (const auto tab = m_tabs.find(&control); tab != m_tabs.end()) {
      words += QStringLiteral("tab %1").arg(tab->second);
    }
    if (m_window.focusWidget() == &control) {
      words += QStringLiteral("focused");
    }
    return words + QStringList{Place(control, m_window)};
  }

  QStringList LookOfButton(const QAbstractButton* button) const {
    if (!button) {
      return {};
    }
    QStringList words{Quoted(button->text())};
    words += PictureWords(button->icon(), button->iconSize());
    const auto* push = qobject_cast<const QPushButton*>(button);
    if (push && push->isDefault()) {
      words += QStringLiteral("default");
    }
    if (button->isCheckable()) {
      words += button->isChecked() ? QStringLiteral("ticked") : QStringLiteral("unticked");
    }
    return words;
  }

  static QStringList LookOfLabel(const QLabel* label) {
    if (!label) {
      return {};
    }
    const QVariant buddy = label->buddy() ? label->buddy()->property("controlId") : QVariant();
    return QStringList{Quoted(label->text())} +
           (buddy.isValid() ? QStringList{QStringLiteral("of"), buddy.toString()} : QStringList());
  }

  void AddEntries(int number, const QComboBox* combo) {
    for (int i = 0; combo && i < combo->count(); ++i) {
      Add(QStringList{QStringLiteral("%1 entry %2").arg(number).arg(i),
                      Quoted(combo->itemText(i))} +
          PictureWords(combo->itemIcon(i), combo->iconSize()) +
          (i == combo->currentIndex() ? QStringList{QStringLiteral("current")} : QStringList()));
    }
  }

  void AddRows(int number, const QTreeWidget* list) {
    AddColumns(QString::number(number), list);
    for (int row = 0; list && row < list->topLevelItemCount(); ++row) {
      const QTreeWidgetItem& item = *list->topLevelItem(row);
      QStringList words{QStringLiteral("%1 row %2").arg(number).arg(row)};
      for (int column = 0; column < list->columnCount(); ++column) {
        words += Quoted(item.text(column));
      }
      words += PictureWords(item.icon(0), list->iconSize());
      Add(words + (item.isSelected() ? QStringList{QStringLiteral("selected")} : QStringList()));
    }
  }

  void AddColumns(const QString& name, const QTreeWidget* list) {
    for (int column = 0; list && column < list->columnCount(); ++column) {
      Add({name, QStringLiteral("column %1").arg(column), Quoted(list->headerItem()->text(column)),
           QStringLiteral("wide"), QString::number(list->header()->sectionSize(column))});
    }
  }

  void AddPlaces(const QString& sizeName, const QSize& size) {
    m_window.resize(size);
    QApplication::processEvents();
    Add({sizeName, QStringLiteral("window"), Words(m_window.size())});
    for (const auto& [number, control] : m_controls) {
      const QString name = sizeName + QStringLiteral(" %1").arg(number);
      if (control->isVisibleTo(&m_window)) {
        Add({name, Place(*control, m_window)});
      }
      AddColumns(name, qobject_cast<QTreeWidget*>(control));
    }
  }

  void AddLimits() {
    for (const auto& [number, control] : m_controls) {
      auto* edit = qobject_cast<QLineEdit*>(control);
      if (edit && edit->isEnabled() && edit->isVisibleTo(&m_window)) {
        Add({QString::number(number), Limit(*edit)});
      }
    }
  }

  /// The name of the file that holds this picture, or else the colour in its middle.
  QStringList PictureWords(const QIcon& icon, const QSize& size) const {
    if (icon.isNull()) {
      return {};
    }
    const QImage shown = Comparable(icon.pixmap(size, 1.0).toImage());
    const auto files = m_pictures.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    for (const QString& file : files) {
      if (Comparable(QImage(m_pictures.filePath(file))) == shown) {
        return {QStringLiteral("picture"), file};
      }
    }
    return {QStringLiteral("picture of"), Words(shown.size()),
            shown.pixelColor(shown.rect().center()).name()};
  }

  QDialog& m_window;
  const QDir& m_pictures;
  const Controls m_controls;
  const std::map<const QWidget*, int> m_tabs;
  std::vector<std::string> m_lines;
};

}  // namespace

std::vector<std::string> WindowText(QDialog& window, const QDir& pictures) {
  return Writer(window, pictures).Lines();
}

}  // namespace qv
