// The part of a foreign host that uses the library: it is loaded, run and unloaded again.
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <vector>

#include "library/QVDiscriminator.h"

namespace {

constexpr int addButton = 5348;
constexpr int calendarLink = 5004;
constexpr int conditionsLink = 5008;
constexpr int addCondition = 5400;
constexpr int wizardButton = 5406;

QAbstractButton* ButtonOf(const QWidget& window, int id) {
  const auto buttons = window.findChildren<QAbstractButton*>();
  const auto found = std::find_if(buttons.begin(), buttons.end(), [id](QAbstractButton* button) {
    return button->property("controlId").toInt() == id;
  });
  return found == buttons.end() ? nullptr : *found;
}

/// Whether assistive technology finds a year in the window: a table of seven columns.
bool TellsAYear(const QWidget& window) {
  const auto widgets = window.findChildren<QWidget*>();
  return std::any_of(widgets.begin(), widgets.end(), [](QWidget* widget) {
    auto* table = QAccessible::queryAccessibleInterface(widget)->tableInterface();
    return table && table->columnCount() == 7;
  });
}

/// Presses these buttons, each in the window that the one before opens, looks at the last window,
/// and leaves all of them.
void Visit(std::vector<int> buttons, const std::function<void(const QWidget&)>& look) {
  QTimer::singleShot(0, qApp, [buttons, look] {
    QWidget* window = QApplication::activeModalWidget();
    QAbstractButton* button = buttons.empty() ? nullptr : ButtonOf(*window, buttons.front());
    if (button) {
      Visit({buttons.begin() + 1, buttons.end()}, look);
      button->click();
    } else {
      look(*window);
    }
    window->close();
  });
}

/// Whether the manager can be left again, and a new discriminator's calendar is told in it.
bool RunManager() {
  CDlgSetupDiscriminators manager(nullptr, nullptr);
  bool tellsAYear = false;
  Visit({addButton, calendarLink},
        [&tellsAYear](const QWidget& window) { tellsAYear = TellsAYear(window); });
  return manager.DoModal() == IDCANCEL && tellsAYear;
}

/// Whether the editor of a condition is reached, and has asked for the wizard, which gave nothing.
bool RunConditions() {
  CDlgSetupDiscriminators manager(nullptr, nullptr);
  bool isThere = false;
  Visit({addButton, conditionsLink, addCondition}, [&isThere](const QWidget& window) {
    QAbstractButton* wizard = ButtonOf(window, wizardButton);
    isThere = wizard != nullptr;
    if (isThere) {
      wizard->click();
    }
  });
  return manager.DoModal() == IDCANCEL && isThere;
}

bool RunFastSelection() {
  std::vector<DWORD> colours = {0x0000FF, 0x00FF00};
  std::vector<QVWideString> names = {L"Work", L"Rest"};
  CDlgFastSelection dialog(nullptr, &colours, &names, 2026);
  QTimer::singleShot(0, qApp, [] {
    QWidget* window = QApplication::activeModalWidget();
    for (auto* check : window->findChildren<QCheckBox*>()) {
      check->click();
    }
    QTest::keyClick(window, Qt::Key_Return);
  });
  return dialog.SetMaxMinMonth(3, 6) && dialog.DoModal() == IDOK && dialog.m_nDayType == 0 &&
         dialog.m_dwMonths == 0x3C && dialog.m_dwWeekDays == 0x7F;
}

/// Whether the dial paints a day of one red slot.
bool PaintsADay() {
  const BYTE map[] = {0, 0, 1};
  QVDayCtrl dial;
  dial.resize(200, 100);
  dial.Setup(BYTE{1});
  dial.SetBkColor(0xFF0000);
  dial.Setup(map, 3);
  const QImage picture = dial.grab().toImage();
  const double density = picture.devicePixelRatio();
  return picture.pixelColor(QPoint(46, 26) * density) == QColor(Qt::red) &&
         picture.pixelColor(QPoint(46, 60) * density) == QColor(Qt::blue);
}

}  // namespace

/// Runs each exported class once; the number of those that didn't end as they should.
extern "C" Q_DECL_EXPORT int RunExportedClasses() {
  return (RunManager() ? 0 : 1) + (RunConditions() ? 0 : 1) + (PaintsADay() ? 0 : 1) +
         (RunFastSelection() ? 0 : 1);
}

/// Runs the manager while the host has nothing installed; what the dial does, which needs nothing,
/// comes first.
extern "C" Q_DECL_EXPORT int RunWithoutServices() {
  if (!PaintsADay()) {
    return -2;
  }
  CDlgFastSelection fastSelection;
  if (fastSelection.DoModal() != -1) {
    return -3;
  }
  CDlgSetupDiscriminators manager(nullptr, nullptr);
  return manager.DoModal();
}
