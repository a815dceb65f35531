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
/// It never changes by what a user does to it: it tells of names that are typed and of lines that
/// are dropped, and is filled anew.
class DeviceTreeModel : public QStandardItemModel {
  Q_OBJECT

 public:
  /// What of a cell is edited, if that isn't what it shows.
  static constexpr int nameRole = Qt::UserRole + 1;

  /// Is asked whether lines may be dropped into the group at a place.
  std::function<bool(const Places&, const TreePlace&)> mayDrop;

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

  /// Tells at once what is still to be told.
  void TellNow();

 signals:
  /// The user gave the group at `place` this name. Comes when the view is done with it.
  void Renamed(const TreePlace& place, const QString& name);
  /// The user dropped lines into a group, before the given row or behind all. Comes likewise.
  void Dropped(const Places& lines, const TreePlace& group, std::optional<int> row);

 private:
  void TellLater(const std::function<void()>& tell);
};

}  // namespace configurator
