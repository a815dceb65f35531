// Saves a picture of each dialog that hosts can't run by themselves:
//   dialog_pictures DIRECTORY LANGUAGE [dark] [embedded]
#include <QApplication>
#include <QDir>
#include <QTimer>

#include "apps/configurator/Theme.h"
#include "apps/configurator/Workspace.h"
#include "editor/ui/CDlgAddModifyDiscriminator.h"
#include "timestructure/ui/CDlgAddModifyDayType.h"
#include "timestructure/ui/CDlgAddModifyHourType.h"
#include "timestructure/ui/CDlgAddModifyTimeSlot.h"
#include "timestructure/ui/CDlgDayTypes.h"
#include "timestructure/ui/CDlgHourTypes.h"

namespace {

/// Runs `dialog`, saves its picture as soon as it is up, and leaves it.
void Picture(CDialog& dialog, const QString& file, QSize size = {}) {
  QTimer::singleShot(0, &dialog, [&] {
    if (size.isValid()) {
      dialog.resize(size);
    }
    QTimer::singleShot(0, &dialog, [&] {
      dialog.grab().save(file);
      static_cast<QWidget&>(dialog).close();
    });
  });
  dialog.DoModal();
}

}  // namespace

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  const QStringList words = QApplication::arguments();
  if (words.size() < 3) {
    return 2;
  }
  const auto language = qv::LanguageOf(words[2].toStdString());
  configurator::Workspace workspace(configurator::ProgramDirectories::OfThisProgram());
  if (!language || workspace.SetLanguage(*language) ||
      workspace.Open(QStringLiteral(PICTURED_FILE))) {
    return 1;
  }
  configurator::UseTheme(words.contains(QStringLiteral("dark")) ? configurator::Theme::Dark
                                                                : configurator::Theme::Light);
  workspace.Config().SetEmbedded(words.contains(QStringLiteral("embedded")));
  const QDir directory(words[1]);
  const QString tariff =
      QStringLiteral(PICTURED_FILE) + QStringLiteral(
                                          "9cfc40ad-7433-4b63-9bdc-fddcb544122c.Tariff 3-0TD and "
                                          "6-1TD 2026.xdct");
  XmlDocument document;
  if (!document.Load(tariff.toStdWString().c_str())) {
    return 1;
  }
  qv::XmlNode& hourTypes = *document.Root()->Node(L"hourTypes");
  const QVWideString path(tariff.toStdWString().c_str());

  CDlgAddModifyDiscriminator editor(nullptr, nullptr, &path);
  Picture(editor, directory.filePath(QStringLiteral("discriminator.png")));
  CDlgHourTypes types(nullptr, &hourTypes, nullptr);
  Picture(types, directory.filePath(QStringLiteral("hour-types.png")));
  CDlgHourTypes least(nullptr, &hourTypes, nullptr);
  Picture(least, directory.filePath(QStringLiteral("hour-types-least.png")), QSize(1, 1));
  CDlgHourTypes wide(nullptr, &hourTypes, nullptr);
  Picture(wide, directory.filePath(QStringLiteral("hour-types-wide.png")), QSize(640, 480));
  CDlgAddModifyHourType hourType(nullptr, &hourTypes, *hourTypes.ChildsBegin());
  Picture(hourType, directory.filePath(QStringLiteral("hour-type.png")));

  qv::XmlNode& dayTypes = *document.Root()->Node(L"dayTypes");
  qv::XmlNode& day = **dayTypes.ChildsBegin();
  CDlgDayTypes days(nullptr, &dayTypes, nullptr, &hourTypes);
  Picture(days, directory.filePath(QStringLiteral("day-types.png")));
  CDlgAddModifyDayType dayType(nullptr, &day, &dayTypes, &hourTypes);
  Picture(dayType, directory.filePath(QStringLiteral("day-type.png")));
  CDlgAddModifyDayType large(nullptr, &day, &dayTypes, &hourTypes);
  Picture(large, directory.filePath(QStringLiteral("day-type-large.png")), QSize(1100, 700));
  CDlgAddModifyTimeSlot slot(nullptr, &hourTypes, day.Node(L"slot"), 0x80CCFF);
  Picture(slot, directory.filePath(QStringLiteral("time-slot.png")));
  return 0;
}
