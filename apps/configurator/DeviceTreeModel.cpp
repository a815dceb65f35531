#include "apps/configurator/DeviceTreeModel.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QEvent>
#include <QIODevice>
#include <QMimeData>
#include <algorithm>
#include <memory>

namespace configurator {
namespace {

/// Lines only mean something in the tree that they come from, so each process has a type of its
/// own.
QString LinesType() {
  return QStringLiteral("application/x-configurator-lines-%1")
      .arg(QCoreApplication::applicationPid());
}

QByteArray Packed(const QModelIndexList& cells) {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  for (const QModelIndex& cell : cells) {
    if (cell.column() == 0) {
      const TreePlace place = PlaceOf(cell);
      stream << QList<int>(place.begin(), place.end());
    }
  }
  return bytes;
}

Places Unpacked(const QMimeData& lines) {
  Places places;
  QDataStream stream(lines.data(LinesType()));
  while (!stream.atEnd()) {
    QList<int> place;
    stream >> place;
    places.emplace_back(place.begin(), place.end());
  }
  return places;
}

}  // namespace

TreePlace PlaceOf(const QModelIndex& index) {
  TreePlace place;
  for (QModelIndex line = index; line.isValid(); line = line.parent()) {
    place.push_back(line.row());
  }
  std::reverse(place.begin(), place.end());
  return place;
}

DeviceTreeModel::DeviceTreeModel(QObject* parent) : QStandardItemModel(parent) {}

QVariant DeviceTreeModel::data(const QModelIndex& index, int role) const {
  return QStandardItemModel::data(index, role == Qt::EditRole ? nameRole : role);
}

bool DeviceTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role == Qt::EditRole) {
    TellLater(
        [this, place = PlaceOf(index), name = value.toString()] { emit Renamed(place, name); });
  }
  return role == Qt::EditRole;
}

void DeviceTreeModel::TellLater(const std::function<void()>& tell) {
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void DeviceTreeModel::TellNow() { QCoreApplication::sendPostedEvents(this, QEvent::MetaCall); }

QStringList DeviceTreeModel::mimeTypes() const { return {LinesType()}; }

QMimeData* DeviceTreeModel::mimeData(const QModelIndexList& indexes) const {
  auto lines = std::make_unique<QMimeData>();
  lines->setData(LinesType(), Packed(indexes));
  return lines.release();  // the caller owns it
}

bool DeviceTreeModel::canDropMimeData(const QMimeData* lines, Qt::DropAction action, int /*row*/,
                                      int /*column*/, const QModelIndex& parent) const {
  return action == Qt::MoveAction && lines && lines->hasFormat(LinesType()) && mayDrop &&
         mayDrop(Unpacked(*lines), PlaceOf(parent));
}

bool DeviceTreeModel::dropMimeData(const QMimeData* lines, Qt::DropAction action, int row,
                                   int column, const QModelIndex& parent) {
  if (canDropMimeData(lines, action, row, column, parent)) {
    TellLater([this, what = Unpacked(*lines), group = PlaceOf(parent),
               before = row < 0 ? std::nullopt : std::optional(row)] {
      emit Dropped(what, group, before);
    });
  }
  // The view would remove the lines itself from a model that took them.
  return false;
}

}  // namespace configurator
