#pragma once

#include <QLabel>
#include <QTreeWidget>

namespace qv {

/// Says in grey, over a list without rows, how to begin. It comes and goes with the rows, takes no
/// input, and dies with the list; without a text it never shows.
class EmptyHint : public QLabel {
  Q_OBJECT

 public:
  explicit EmptyHint(QTreeWidget& list);

  void SetHint(const QString& hint);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Follow();

  QTreeWidget& m_list;
};

}  // namespace qv
