#include "hostkit/GuidNotices.h"

#include <gtest/gtest.h>

#include <vector>

namespace qv {
namespace {

TEST(GuidNotices, ListenerHearsEachNoticeInOrder) {
  std::vector<int> heard;
  GuidNotices notices([&](int id) { heard.push_back(id); });
  notices.invalidateGuid(QVVornelGuids::Discriminators, true);
  notices.invalidateGuid(QVVornelGuids::DeviceGroups, true);
  notices.invalidateGuid(QVVornelGuids::DeviceGroups, true);
  EXPECT_EQ(heard, (std::vector<int>{8, 5, 5}));
}

TEST(GuidNotices, CallWithoutTheFlagIsNoNotice) {
  int count = 0;
  GuidNotices notices([&](int) { ++count; });
  notices.invalidateGuid(QVVornelGuids::DeviceGroups, false);
  EXPECT_EQ(count, 0);
}

TEST(GuidNotices, NeedNoListener) {
  GuidNotices notices(nullptr);
  EXPECT_NO_THROW(notices.invalidateGuid(QVVornelGuids::DeviceGroups, true));
}

}  // namespace
}  // namespace qv
