#include "apps/configurator/StatusLine.h"

#include <QEvent>
#include <QHBoxLayout>
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
      m_line(new QWidget),
      m_told(new ElidedLabel(Qt::ElideRight)),
      m_path(new ElidedLabel(Qt::ElideMiddle)) {
  m_told->setObjectName(QStringLiteral("told"));
  m_path->setObjectName(QStringLiteral("path"));
  m_told->setContentsMargins(sideMargin, 0, sideMargin, 0);
  m_path->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* row = new QHBoxLayout(m_line);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(m_told, 1);
  row->addWidget(m_path);
  m_line->installEventFilter(this);
  addWidget(m_line, 1);
}

void StatusLine::SetPath(const QString& path) {
  m_path->setText(path);
  ShareRoom();
}

bool StatusLine::eventFilter(QObject* line, QEvent* event) {
  if (event->type() == QEvent::Resize) {
    ShareRoom();
  }
  return QStatusBar::eventFilter(line, event);
}

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
  ShareRoom();
}

void StatusLine::ShareRoom() {
  constexpr int leastShare = 3;
  const int room = m_line->width();
  const int path = std::min(m_path->sizeHint().width(),
                            std::max(room - m_told->sizeHint().width(), room / leastShare));
  m_path->setMaximumWidth(path);
  m_told->setMaximumWidth(room - path);
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
