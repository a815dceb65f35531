#pragma once

#include <QStandardItemModel>
#include <functional>
#include <optional>
#include <vector>

#include "apps/configurator/DeviceGroupEdits.h"

namespace configurator {

/// The place of the line that `index` is a cell of.
TreePlace PlaceOf(const QModelIndex& index);

/// The lines of the tree of device groups.
///
/// It never changes by what a user does to it: a name that is typed, and lines that are dragged and
/// dropped, are told to whom it was said to tell, once the view is done with them.
class DeviceTreeModel : public QStandardItemModel {
  Q_OBJECT

 public:
  using Places = std::vector<TreePlace>;

  /// What of a cell is edited, if that isn't what it shows.
  static constexpr int nameRole = Qt::UserRole + 1;

  /// Is told the new name of the group at a place.
  std::function<void(const TreePlace&, const QString&)> whenRenamed;
  /// Is asked whether lines may be dropped into the group at a place.
  std::function<bool(const Places&, const TreePlace&)> mayDrop;
  /// Is told that lines were dropped into a group, before the given row or behind all.
  std::function<void(const Places&, const TreePlace&, std::optional<int>)> whenDropped;

  explicit DeviceTreeModel(QObject* parent);

  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  bool canDropMimeData(const QMimeData* lines, Qt::DropAction action, int row, int column,
                       const QModelIndex& parent) const override;
  bool dropMimeData(const QMimeData* lines, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;
};

}  // namespace configurator
