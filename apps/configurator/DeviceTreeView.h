#pragma once

#include <QIcon>
#include <QSet>
#include <QTreeView>
#include <vector>

#include "apps/configurator/DeviceTree.h"
#include "apps/configurator/DeviceTreeModel.h"
#include "apps/configurator/OwnTexts.h"

class QStandardItem;

namespace configurator {

/// Shows the device groups: names in the first column, types and what is amiss in the second. Lines
/// can be selected, dragged and dropped; the names of groups can be typed.
class DeviceTreeView : public QTreeView {
  Q_OBJECT

 public:
  explicit DeviceTreeView(QIcon discriminatorIcon, QWidget* parent = nullptr);

  /// Shows `items` in `language` in place of what was shown. What was collapsed stays so, and the
  /// current line stays current, as far as they are still there.
  void Show(const std::vector<DeviceTreeItem>& items, qv::Language language);

  /// The places of the selected lines, in the order of the tree.
  std::vector<TreePlace> Selected() const;
  /// Selects these lines and no others, and scrolls to the first of them, which becomes the current
  /// one. Places that aren't there are passed over.
  void Select(const std::vector<TreePlace>& places);
  /// Lets the user type the name of the group at `place`.
  void EditName(const TreePlace& place);
  /// Takes the name that is being typed, if there is one, as if it had been confirmed.
  void CommitName();

  /// Whether the line at `place` is an entry that leads nowhere.
  bool IsBroken(const TreePlace& place) const;

  /// The model of the lines, which tells of what the user does to them.
  DeviceTreeModel& Lines() { return *m_model; }

 signals:
  /// The user wants to work on the discriminator of a line: by Return, or by a double click.
  void DiscriminatorActivated();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  QModelIndex IndexOf(const TreePlace& place) const;
  void SetTexts(qv::Language language);
  void AddItems(QStandardItem* parent, const std::vector<DeviceTreeItem>& items);
  QList<QStandardItem*> Line(const DeviceTreeItem& item, const QString& key) const;
  QString NameText(const DeviceTreeItem& item) const;
  QString TypeText(const DeviceTreeItem& item) const;
  QIcon IconOf(const DeviceTreeItem& item) const;
  struct Shown;
  Shown Remembered() const;
  void Restore(const Shown& shown);

  DeviceTreeModel* m_model;
  QIcon m_discriminatorIcon;
  qv::Language m_language = qv::Language::English;
};

}  // namespace configurator
