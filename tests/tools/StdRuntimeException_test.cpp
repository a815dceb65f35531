#include "tools/StdRuntimeException.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(StdRuntimeException, CarriesACopyOfItsMessage) {
  std::string message = "it failed";
  const StdRuntimeException exception(message.c_str());
  message.clear();
  EXPECT_STREQ(exception.what(), "it failed");
}

TEST(StdRuntimeException, TakesANullMessageForAnEmptyOne) {
  EXPECT_STREQ(StdRuntimeException(nullptr).what(), "");
}

TEST(StdRuntimeException, IsCopiedAndCaughtAsARuntimeError) {
  const StdRuntimeException exception("it failed");
  StdRuntimeException copy("other");
  copy = StdRuntimeException(exception);
  try {
    throw copy;
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "it failed");
  }
}

}  // namespace
