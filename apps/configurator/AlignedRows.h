#pragma once

#include <QString>

class QAbstractItemModel;

namespace configurator {

/// The rows that `model` holds at its top level, a line each, with the columns below each other and
/// two blanks between them. Line breaks and tabs in a text become blanks.
QString AlignedRows(const QAbstractItemModel& model);

}  // namespace configurator
