// The conditions of a discriminator, opened from its editor, down to the file.
#include "tests/editor/ui/EditorFixture.h"

namespace qv {
namespace {

class ConditionsOfDiscriminator : public Editor {
 protected:
  ConditionsOfDiscriminator() {
    for (const wchar_t* good : {L"a", L"b"}) {
      host->driverSupport.script[good] = {};
    }
  }

  /// Modifies a discriminator of conditions: its button opens the list, in which `play` plays the
  /// user, and then the editor ends.
  void PlayIn(const std::function<void()>& play, int end) {
    Modify(PutFile("1.alarm.xdct", alarm), [&] {
      WhenNextWindow(play);
      Click(conditionsLink);
      EXPECT_EQ(Saved(), alarm) << "nothing reaches the disk before OK";
      Click(end);
    });
  }

  static void AddCondition(int editorEnd, int listEnd) {
    EXPECT_EQ(TopWindow()->windowTitle(), TitleOf(Text::ConditionListTitle));
    WhenNextWindow([=] {
      Type(conditionName, "New");
      Type(expressionEdit, "b");
      Click(editorEnd);
    });
    Click(addCondition);
    Click(listEnd);
  }

  QByteArray Saved() const { return Content("1.alarm.xdct"); }

  static inline const QByteArray alarm =
      "<main><id>1</id><name>alarm</name><description/><setZeroOutsideSlot>T</setZeroOutsideSlot>"
      "<type>CONDITIONS</type><conditions><condition><id>x</id><name>A</name><exp>a</exp>"
      "</condition><condition><id>y</id><name>B</name><exp>b</exp></condition></conditions>"
      "<revision>r</revision></main>";
};

TEST_F(ConditionsOfDiscriminator, AreAddedThroughTheirButtonAndSaved) {
  PlayIn([] { AddCondition(IDOK, IDOK); }, IDOK);
  EXPECT_TRUE(modified);
  EXPECT_TRUE(Saved().contains("<name>New</name>"));
  EXPECT_FALSE(Saved().contains("<revision>r</revision>"));
}

TEST_F(ConditionsOfDiscriminator, ACancelledConditionIsDropped) {
  PlayIn([] { AddCondition(IDCANCEL, IDOK); }, IDOK);
  EXPECT_FALSE(modified);
  EXPECT_FALSE(Saved().contains("New"));
  EXPECT_TRUE(Saved().contains("<revision>r</revision>"));
}

TEST_F(ConditionsOfDiscriminator, ACancelledListIsDropped) {
  PlayIn([] { AddCondition(IDOK, IDCANCEL); }, IDOK);
  EXPECT_FALSE(modified);
  EXPECT_FALSE(Saved().contains("New"));
}

TEST_F(ConditionsOfDiscriminator, ACancelledEditorLeavesTheFileAsItWas) {
  PlayIn([] { AddCondition(IDOK, IDOK); }, IDCANCEL);
  EXPECT_EQ(Saved(), alarm);
}

TEST_F(ConditionsOfDiscriminator, AMoveIsSavedUnderTheOldRevision) {
  PlayIn(
      [] {
        Click(conditionDown);
        Click(IDOK);
      },
      IDOK);
  EXPECT_FALSE(modified);
  EXPECT_TRUE(Saved().contains("<revision>r</revision>"));
  EXPECT_LT(Saved().indexOf("<name>B</name>"), Saved().indexOf("<name>A</name>"));
  EXPECT_LT(Saved().indexOf("<id>x</id>"), Saved().indexOf("<id>y</id>"));
}

TEST_F(ConditionsOfDiscriminator, TheirLinkWorksAfterASaveThatDroppedThem) {
  QByteArray file = alarm;
  file.replace("CONDITIONS", "OTHER");
  // A directory stands where the file should go; the name differs in case, so that it isn't
  // "taken".
  ASSERT_TRUE(QDir(directory.path()).mkdir("1.ALARM.xdct"));
  Modify(PutFile("1.alarm.xdct", file), [&] {
    Edit(discriminatorName)->setText("ALARM");
    AnswerNextBox(Text::DiscriminatorNotSaved, QMessageBox::Ok);
    Click(IDOK);
    WhenNextWindow([] {
      EXPECT_EQ(Rows(conditionList), QStringList());
      AddCondition(IDOK, IDOK);
    });
    Click(conditionsLink);
    Click(IDCANCEL);
  });
  EXPECT_TRUE(Files().isEmpty());
}

}  // namespace
}  // namespace qv
