#pragma once

#include <QIcon>
#include <QSet>
#include <QTreeView>
#include <vector>

#include "apps/configurator/DeviceTree.h"
#include "apps/configurator/OwnTexts.h"

class QStandardItem;
class QStandardItemModel;

namespace configurator {

/// Shows the device groups: names in the first column, types and what is amiss in the second.
class DeviceTreeView : public QTreeView {
  Q_OBJECT

 public:
  explicit DeviceTreeView(QIcon discriminatorIcon, QWidget* parent = nullptr);

  /// Shows `items` in `language` in place of what was shown. What was collapsed stays so, and the
  /// current line stays current, as far as they are still there.
  void Show(const std::vector<DeviceTreeItem>& items, Language language);

 private:
  void SetTexts(Language language);
  void AddItems(QStandardItem* parent, const std::vector<DeviceTreeItem>& items);
  QList<QStandardItem*> Line(const DeviceTreeItem& item, const QString& key) const;
  QString NameText(const DeviceTreeItem& item) const;
  QString TypeText(const DeviceTreeItem& item) const;
  QIcon IconOf(const DeviceTreeItem& item) const;
  void Restore(const QSet<QString>& collapsed, const QString& current);

  QStandardItemModel* m_model;
  QIcon m_discriminatorIcon;
  Language m_language = Language::English;
};

}  // namespace configurator
