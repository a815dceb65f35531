#include "apps/configurator/DeviceTreeView.h"

#include <gtest/gtest.h>

namespace configurator {
namespace {

using Kind = DeviceTreeItem::Kind;

DeviceTreeItem Device(const wchar_t* name) { return {Kind::Device, L"1", L"T", name, {}}; }

DeviceTreeItem Group(const wchar_t* name, std::vector<DeviceTreeItem> below) {
  return {Kind::Group, L"", L"", name, std::move(below)};
}

QString TextAt(const QTreeView& view, std::initializer_list<int> rows, int column = 0) {
  QModelIndex index;
  for (const int row : rows) {
    index = view.model()->index(row, 0, index);
  }
  return index.siblingAtColumn(column).data().toString();
}

TEST(DeviceTreeView, ShowsNamesAndTypes) {
  DeviceTreeView view{QIcon()};
  view.Show({Group(L"G", {Device(L"D")}), Device(L"E")}, qv::Language::English);
  EXPECT_EQ(TextAt(view, {0}), "G");
  EXPECT_EQ(TextAt(view, {0, 0}), "D");
  EXPECT_EQ(TextAt(view, {0, 0}, 1), "T");
  EXPECT_EQ(TextAt(view, {1}), "E");
  EXPECT_TRUE(view.isExpanded(view.model()->index(0, 0)));
}

TEST(DeviceTreeView, WhatIsMissingShowsItsIdAndAHint) {
  DeviceTreeView view{QIcon()};
  view.Show({{Kind::Discriminator, L"12-34", L"R$DISC", L"", {}},
             {Kind::Device, L"56", L"T", L"", {}},
             {Kind::Device, L"", L"T", L"", {}},
             {Kind::Group, L"", L"", L"", {}}},
            qv::Language::English);
  EXPECT_EQ(TextAt(view, {0}), "12-34");
  EXPECT_EQ(TextAt(view, {0}, 1), "R$DISC (there is no file of this discriminator)");
  EXPECT_EQ(TextAt(view, {1}), "56");
  EXPECT_EQ(TextAt(view, {1}, 1), "T (the installation has no such device)");
  EXPECT_EQ(TextAt(view, {2}), "(entry without an id)");
  EXPECT_EQ(TextAt(view, {3}), "(group without a name)");
  EXPECT_EQ(TextAt(view, {3}, 1), "");
}

TEST(DeviceTreeView, ARefreshKeepsWhatIsCollapsedAndCurrent) {
  DeviceTreeView view{QIcon()};
  const std::vector<DeviceTreeItem> items = {Group(L"G", {Device(L"D")}),
                                             Group(L"H", {Device(L"D"), Device(L"E")})};
  view.Show(items, qv::Language::English);
  view.collapse(view.model()->index(0, 0));
  view.setCurrentIndex(view.model()->index(1, 1, view.model()->index(1, 0)));
  view.Show(items, qv::Language::English);
  EXPECT_FALSE(view.isExpanded(view.model()->index(0, 0)));
  EXPECT_TRUE(view.isExpanded(view.model()->index(1, 0)));
  EXPECT_EQ(view.currentIndex().data().toString(), "E");
  view.Show({items.front()}, qv::Language::English);
  EXPECT_EQ(view.currentIndex().data().toString(), "G");
  view.Show({}, qv::Language::English);
  EXPECT_FALSE(view.currentIndex().isValid());
}

TEST(DeviceTreeView, SpeaksTheLanguageThatItIsGiven) {
  DeviceTreeView view{QIcon()};
  view.Show({Group(L"", {})}, qv::Language::Spanish);
  EXPECT_EQ(TextAt(view, {0}), "(grupo sin nombre)");
  EXPECT_EQ(view.model()->headerData(1, Qt::Horizontal).toString(), "Tipo");
  EXPECT_EQ(view.accessibleName(), "Grupos y dispositivos");
}

TEST(DeviceTreeView, DevicesCanNotBeRenamed) {
  DeviceTreeView view{QIcon()};
  view.Show({Device(L"D")}, qv::Language::English);
  EXPECT_FALSE(view.model()->index(0, 0).flags() & Qt::ItemIsEditable);
  EXPECT_FALSE(view.model()->index(0, 1).flags() & Qt::ItemIsEditable);
}

TEST(DeviceTreeView, ATextWithTagsIsShownAsItStands) {
  DeviceTreeView view{QIcon()};
  view.Show({Device(L"<b>D</b>")}, qv::Language::English);
  EXPECT_EQ(TextAt(view, {0}), "<b>D</b>");
  EXPECT_TRUE(view.model()->index(0, 0).data(Qt::ToolTipRole).toString().contains("&lt;b&gt;"));
}

}  // namespace
}  // namespace configurator
