#include "toolkit/ControlCaption.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "tests/support/FakeHost.h"
#include "toolkit/Texts.h"

namespace qv {
namespace {

TEST(ControlCaption, ButtonsAndLabelsWithABuddyHaveAMnemonic) {
  QCheckBox check;
  ShowCaption(&check, QStringLiteral("&Zero"));
  EXPECT_EQ(check.text(), "&Zero");
  QWidget window;
  QLabel label(&window);
  QLineEdit edit(&window);
  label.setBuddy(&edit);
  ShowCaption(&label, QStringLiteral("&Name"));
  EXPECT_EQ(label.text(), "&Name");
}

TEST(ControlCaption, WhatNoKeyCanReachReadsPlain) {
  QLabel label;
  ShowCaption(&label, QStringLiteral("&Name && value"));
  EXPECT_EQ(label.text(), "Name & value");
  QGroupBox box;
  ShowCaption(&box, QStringLiteral("Hour &types && more"));
  EXPECT_EQ(box.title(), "Hour types && more") << "two are one there as well";
  ShowCaption(nullptr, QStringLiteral("nothing"));
}

/// Texts that all have a mnemonic.
class MarkedTexts : public NumberTexts {
 public:
  QVWideString& operator()(unsigned, QVWideString& text) const override {
    return text = L"&Copy && paste";
  }
};

TEST(Texts, AreCaptionsOrReadPlain) {
  const MarkedTexts texts;
  EXPECT_EQ(HostCaption(texts, Text::Copy), "&Copy && paste");
  EXPECT_EQ(HostText(texts, Text::Copy), "Copy & paste");
}

}  // namespace
}  // namespace qv
