#pragma once

#include <QStatusBar>
#include <utility>
#include <vector>

#include "apps/configurator/OwnTexts.h"

class QLabel;

namespace configurator {

/// The status bar: what happened last on the left, the path of the open installation on the right.
/// Each may have all the room that the other leaves; where both are too long, the path is cut to a
/// third.
///
/// The notices of changes add up until something else is told, in the order in which each first
/// came, with how often it came.
class StatusLine : public QStatusBar {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent = nullptr);

  void SetPath(const QString& path);

  /// Tells `text` and forgets the notices.
  void Tell(OwnText text);
  /// Tells of a notice, together with those before it.
  void AddNotice(int id);
  /// The same from now on in `language`.
  void SetLanguage(qv::Language language);

  /// What stands on the left.
  QString Told() const;

 protected:
  bool eventFilter(QObject* line, QEvent* event) override;

 private:
  void Refresh();
  void ShareRoom();
  QString Notice(int id) const;

  QWidget* m_line;
  QLabel* m_told;
  QLabel* m_path;
  qv::Language m_language = qv::Language::English;
  OwnText m_text = OwnText::Ready;
  std::vector<std::pair<int, int>> m_notices;  // id and how often
};

}  // namespace configurator
