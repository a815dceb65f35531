#pragma once

#include <gtest/gtest.h>

#include <QHeaderView>
#include <functional>

#include "tests/support/ControlDriver.h"

namespace qv {

/// Gives the columns of a list other widths, as a user does by dragging, and fails the test unless
/// they have equal parts of the list's width again after `verb`, the last one what is left over.
inline void ExpectColumnsSizedAnew(int list, const std::function<void()>& verb) {
  QHeaderView* header = List(list)->header();
  constexpr int dragged = 33;
  for (int column = 0; column < header->count(); ++column) {
    header->resizeSection(column, dragged);
  }
  verb();
  const int room = List(list)->viewport()->width();
  const int share = room / header->count();
  for (int column = 0; column < header->count() - 1; ++column) {
    EXPECT_EQ(header->sectionSize(column), share) << "column " << column;
  }
  EXPECT_EQ(header->sectionSize(header->count() - 1), room - (header->count() - 1) * share);
}

}  // namespace qv
