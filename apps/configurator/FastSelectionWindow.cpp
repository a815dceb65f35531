#include "apps/configurator/FastSelectionWindow.h"

#include <QDate>
#include <memory>
#include <string>

#include "apps/configurator/DiscriminatorManager.h"
#include "apps/configurator/Strings.h"
#include "discriminator/DiscriminatorDirectory.h"
#include "discriminator/Fields.h"
#include "discriminator/FileNames.h"
#include "library/QVDiscriminator.h"
#include "tools/Names.h"

namespace configurator {
namespace {

constexpr int firstMonth = 3;
constexpr int lastMonth = 6;

using Document = std::unique_ptr<XmlDocument>;

/// The discriminator of this file if it is of slots, or null.
Document Load(const qv::DiscriminatorDirectory& files, std::wstring_view fileName) {
  auto document = std::make_unique<XmlDocument>();
  const bool isOfSlots =
      files.Load(*document, fileName) && document->Root()->Value(qv::tag::Type) == qv::word::Slots;
  return isOfSlots ? std::move(document) : nullptr;
}

bool IsListedBefore(const Document& a, const Document& b) {
  return qv::CompareLowered(a->Root()->Value(qv::tag::Name).ToView(),
                            b->Root()->Value(qv::tag::Name).ToView()) < 0;
}

/// The discriminator with this stem, or the first by name of those of slots.
Document LoadDiscriminator(const Workspace& workspace, const QString& stem) {
  const QString directory = workspace.Directory() + QLatin1Char('/');
  const qv::DiscriminatorDirectory files(QVWideString(directory.toStdWString().c_str()),
                                         qv::Files::Disk());
  if (!stem.isEmpty()) {
    return Load(files, stem.toStdWString() + qv::discriminatorExtension);
  }
  Document first;
  for (const std::wstring& name : files.FileNames()) {
    Document document = Load(files, name);
    if (document && (!first || IsListedBefore(document, first))) {
      first = std::move(document);
    }
  }
  return first;
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
