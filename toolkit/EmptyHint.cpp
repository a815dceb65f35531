#include "toolkit/EmptyHint.h"

#include <QEvent>

namespace qv {
namespace {

constexpr int aroundHint = 8;

}  // namespace

EmptyHint::EmptyHint(QTreeWidget& list) : QLabel(list.viewport()), m_list(list) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(Qt::AlignCenter);
  setMargin(aroundHint);
  setForegroundRole(QPalette::PlaceholderText);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  list.viewport()->installEventFilter(this);
  for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
    connect(list.model(), changed, this, &EmptyHint::Follow);
  }
  connect(list.model(), &QAbstractItemModel::modelReset, this, &EmptyHint::Follow);
  Follow();
}

void EmptyHint::SetHint(const QString& hint) {
  setText(hint);
  Follow();
}

bool EmptyHint::eventFilter(QObject* watched, QEvent* event) {
  // A viewport that is resized while it is about to show tells nobody of its last size.
  if (event->type() == QEvent::Resize || event->type() == QEvent::Show) {
    resize(m_list.viewport()->size());
  }
  return QLabel::eventFilter(watched, event);
}

void EmptyHint::Follow() {
  const bool isEmpty = m_list.model()->rowCount() == 0;
  setVisible(isEmpty && !text().isEmpty());
  m_list.setAccessibleDescription(isEmpty ? text() : QString());
}

}  // namespace qv
