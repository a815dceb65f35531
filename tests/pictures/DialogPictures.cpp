// Saves a picture of each dialog that hosts can't run by themselves:
//   dialog_pictures DIRECTORY LANGUAGE [dark] [embedded]
#include <QApplication>
#include <QDir>
#include <QTimer>
#include <iterator>
#include <string>

#include "apps/configurator/Theme.h"
#include "apps/configurator/Workspace.h"
#include "calendar/ui/CDlgCalendar.h"
#include "calendar/ui/CDlgFastSelection.h"
#include "conditions/ui/CDlgConditions.h"
#include "conditions/ui/CDlgConditionsNewModify.h"
#include "editor/ui/CDlgAddModifyDiscriminator.h"
#include "timestructure/ui/CDlgAddModifyDayType.h"
#include "timestructure/ui/CDlgAddModifyHourType.h"
#include "timestructure/ui/CDlgAddModifyTimeSlot.h"
#include "timestructure/ui/CDlgDayTypes.h"
#include "timestructure/ui/CDlgHourTypes.h"

namespace {

/// A directory of pictures, each named after its dialog.
class Album {
 public:
  explicit Album(const QString& directory) : m_directory(directory) {}

  /// Runs `dialog`, saves its picture as soon as it is up, and leaves it.
  void Add(CDialog&& dialog, const char* name, QSize size = {}) const {
    const QString file = m_directory.filePath(QLatin1String(name) + QStringLiteral(".png"));
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

 private:
  QDir m_directory;
};

constexpr char tariff2[] =
    PICTURED_FILE "142ff28b-e7f0-4c2b-9500-df7680b117a7.Tariff 2-0TD 2026.xdct";
constexpr char tariff3[] =
    PICTURED_FILE "9cfc40ad-7433-4b63-9bdc-fddcb544122c.Tariff 3-0TD and 6-1TD 2026.xdct";

constexpr char station[] =
    PICTURED_FILE "b4f5b7a3-3a57-4f3e-92cb-dab16be737f9.Transformer station state.xdct";

QVWideString PathOf(const char* tariff) {
  return QVWideString(QString::fromUtf8(tariff).toStdWString().c_str());
}

/// Opens the installation as the words of the command line say; false if it can't be opened.
bool Open(configurator::Workspace& workspace, const QStringList& words) {
  const auto language = qv::LanguageOf(words[2].toStdString());
  if (!language || workspace.SetLanguage(*language) ||
      workspace.Open(QStringLiteral(PICTURED_FILE))) {
    return false;
  }
  configurator::UseTheme(words.contains(QStringLiteral("dark")) ? configurator::Theme::Dark
                                                                : configurator::Theme::Light);
  workspace.Config().SetEmbedded(words.contains(QStringLiteral("embedded")));
  return true;
}

void AddHourTypes(const Album& album, qv::XmlNode& hourTypes) {
  album.Add(CDlgHourTypes(nullptr, &hourTypes, nullptr), "hour-types");
  album.Add(CDlgHourTypes(nullptr, &hourTypes, nullptr), "hour-types-least", QSize(1, 1));
  album.Add(CDlgHourTypes(nullptr, &hourTypes, nullptr), "hour-types-wide", QSize(640, 480));
  album.Add(CDlgAddModifyHourType(nullptr, &hourTypes, *hourTypes.ChildsBegin()), "hour-type");
}

void AddDayTypes(const Album& album, qv::XmlNode& dayTypes, qv::XmlNode& hourTypes) {
  qv::XmlNode& day = **dayTypes.ChildsBegin();
  album.Add(CDlgDayTypes(nullptr, &dayTypes, nullptr, &hourTypes), "day-types");
  album.Add(CDlgAddModifyDayType(nullptr, &day, &dayTypes, &hourTypes), "day-type");
  album.Add(CDlgAddModifyDayType(nullptr, &day, &dayTypes, &hourTypes), "day-type-large",
            QSize(1100, 700));
  album.Add(CDlgAddModifyTimeSlot(nullptr, &hourTypes, day.Node(L"slot"), 0x80CCFF), "time-slot");
}

/// The calendar of a tariff at three sizes, under names that begin so.
void AddCalendar(const Album& album, const char* tariff, const std::string& name) {
  XmlDocument document;
  if (!document.Load(PathOf(tariff))) {
    return;
  }
  qv::XmlNode* calendar = document.Root()->Node(L"calendar");
  qv::XmlNode* dayTypes = document.Root()->Node(L"dayTypes");
  const auto add = [&](const char* size, QSize pixels) {
    album.Add(CDlgCalendar(nullptr, calendar, dayTypes, nullptr), (name + size).c_str(), pixels);
  };
  add("", {});
  add("-least", {1, 1});
  add("-large", {1400, 900});
}

/// The conditions of the transformer station, and one of them with a fault.
void AddConditions(const Album& album) {
  XmlDocument document;
  if (!document.Load(PathOf(station))) {
    return;
  }
  qv::XmlNode& conditions = *document.Root()->Node(L"conditions");
  album.Add(CDlgConditions(nullptr, &conditions), "conditions");
  qv::XmlNode& last = **std::prev(conditions.ChildsEnd());
  album.Add(CDlgConditionsNewModify(nullptr, &last, &conditions), "condition");
  last.SetValue(L"exp", L"[TS1.S] > 630 || [TS1_TEMP.OIL] >");
  album.Add(CDlgConditionsNewModify(nullptr, &last, &conditions), "condition-fault");
}

}  // namespace

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  const QStringList words = QApplication::arguments();
  if (words.size() < 3) {
    return 2;
  }
  configurator::Workspace workspace(configurator::ProgramDirectories::OfThisProgram());
  XmlDocument document;
  const QVWideString path = PathOf(tariff3);
  if (!Open(workspace, words) || !document.Load(path)) {
    return 1;
  }
  const Album album(words[1]);
  album.Add(CDlgAddModifyDiscriminator(nullptr, nullptr, &path), "discriminator");
  qv::XmlNode& hourTypes = *document.Root()->Node(L"hourTypes");
  AddHourTypes(album, hourTypes);
  qv::XmlNode& dayTypes = *document.Root()->Node(L"dayTypes");
  AddDayTypes(album, dayTypes, hourTypes);
  album.Add(CDlgFastSelection(nullptr, &dayTypes, 2026), "fast-selection");
  AddConditions(album);
  AddCalendar(album, tariff2, "calendar-2-0TD");
  AddCalendar(album, tariff3, "calendar");
  return 0;
}
