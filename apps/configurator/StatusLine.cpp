#include "apps/configurator/StatusLine.h"

#include <QStringList>
#include <algorithm>

#include "apps/configurator/ElidedLabel.h"
#include "host/QVVornelGuids.h"

namespace configurator {
namespace {

constexpr int sideMargin = 6;

}  // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent),
      m_told(new ElidedLabel(Qt::ElideRight)),
      m_path(new ElidedLabel(Qt::ElideMiddle)) {
  m_told->setObjectName(QStringLiteral("told"));
  m_path->setObjectName(QStringLiteral("path"));
  m_told->setContentsMargins(sideMargin, 0, 0, 0);
  m_path->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  addWidget(m_told, 1);
  addPermanentWidget(m_path, 1);
}

void StatusLine::SetPath(const QString& path) { m_path->setText(path); }

void StatusLine::Tell(OwnText text) {
  m_text = text;
  m_notices.clear();
  Refresh();
}

void StatusLine::AddNotice(int id) {
  const auto known = std::find_if(m_notices.begin(), m_notices.end(),
                                  [id](const auto& notice) { return notice.first == id; });
  if (known == m_notices.end()) {
    m_notices.emplace_back(id, 1);
  } else {
    ++known->second;
  }
  Refresh();
}

void StatusLine::SetLanguage(qv::Language language) {
  m_language = language;
  Refresh();
}

QString StatusLine::Told() const { return m_told->text(); }

void StatusLine::Refresh() {
  QStringList told;
  for (const auto& [id, times] : m_notices) {
    told += Notice(id) + (times > 1 ? QStringLiteral(" ×%1").arg(times) : QString());
  }
  m_told->setText(told.isEmpty() ? Words(m_text, m_language) : told.join(QStringLiteral(" · ")));
}

QString StatusLine::Notice(int id) const {
  switch (id) {
    case QVVornelGuids::Discriminators:
      return Words(OwnText::DiscriminatorFilesChanged, m_language);
    case QVVornelGuids::DeviceGroups:
      return Words(OwnText::DeviceGroupsChanged, m_language);
    default:
      return Words(OwnText::PartChanged, m_language).arg(id);
  }
}

}  // namespace configurator
