#include "apps/configurator/FastSelectionWindow.h"

#include <QDate>
#include <memory>
#include <string>

#include "apps/configurator/DiscriminatorManager.h"
#include "apps/configurator/Strings.h"
#include "discriminator/DiscriminatorDirectory.h"
#include "discriminator/Fields.h"
#include "library/QVDiscriminator.h"
#include "tools/Names.h"

namespace configurator {
namespace {

constexpr int firstMonth = 3;
constexpr int lastMonth = 6;

bool IsOfSlots(const qv::XmlNode& root) { return root.Value(qv::tag::Type) == qv::word::Slots; }

/// Whether the first is listed before the second.
bool IsBefore(const qv::XmlNode& a, const qv::XmlNode& b) {
  return qv::CompareLowered(a.Value(qv::tag::Name).ToView(), b.Value(qv::tag::Name).ToView()) < 0;
}

/// Loads the discriminator with this stem, or the first listed one, if it is of slots.
std::unique_ptr<XmlDocument> LoadDiscriminator(const Workspace& workspace, const QString& stem) {
  const QString directory = workspace.Directory() + QLatin1Char('/');
  const qv::DiscriminatorDirectory files(QVWideString(directory.toStdWString().c_str()),
                                         qv::Files::Disk());
  std::unique_ptr<XmlDocument> found;
  for (const std::wstring& name : files.FileNames()) {
    auto document = std::make_unique<XmlDocument>();
    const bool isWanted =
        stem.isEmpty() || QString::fromStdWString(name) == stem + QStringLiteral(".xdct");
    const bool isLoaded = isWanted && files.Load(*document, name) && IsOfSlots(*document->Root());
    if (isLoaded && (!found || IsBefore(*document->Root(), *found->Root()))) {
      found = std::move(document);
    }
  }
  return found;
}

QString Told(const CDlgFastSelection& dialog) {
  return QStringLiteral("IDOK weekdays=0x%1 months=0x%2 day-type=%3")
      .arg(dialog.m_dwWeekDays, 2, 16, QLatin1Char('0'))
      .arg(dialog.m_dwMonths, 3, 16, QLatin1Char('0'))
      .arg(dialog.m_nDayType);
}

}  // namespace

FastSelectionEnd RunFastSelection(Workspace& workspace, const QString& stem,
                                  const std::function<void(QWidget&)>& whenMade) {
  const auto document = LoadDiscriminator(workspace, stem);
  if (!document) {
    return {{}, workspace.Words(OwnText::NoDiscriminatorOfSlots)};
  }
  CDlgFastSelection dialog(nullptr, document->Root()->Node(qv::tag::DayTypes),
                           QDate::currentDate().year());
  dialog.SetMaxMinMonth(firstMonth, lastMonth);
  whenMade(dialog);
  const int result = dialog.DoModal();
  return {result == IDOK ? Told(dialog) : ResultName(result), {}};
}

}  // namespace configurator
