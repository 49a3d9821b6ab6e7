// From outside: how the program copes with faults in its environment.
#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <cstdlib>
#include <string>
#include <utility>

#include "steps.h"

namespace vamo {
namespace {

void ExpectResultsAfterTyping(OutsideUser& user) {
  Retype(user, "N", "30");
  Retype(user, "r", ".5");
  EXPECT_EQ(ResultLine(user), "3.06 | .00490 | +.170 to +.729");
}

// Whether a window shows more than one colour in the area of its picture, 92 by 72 pixels.
bool ShowsPicture(const WindowOnScreen& window, int left, int top) {
  const std::string place = "92x72+" + std::to_string(left) + "+" + std::to_string(top);
  return Output({"convert", "x:" + std::to_string(window.id), "-crop", place, "+repage", "-format",
                 "%k", "info:"}) != "1";
}

TEST(Faults, ABrokenPictureLeavesItsPlaceEmpty) {
  for (const auto& [make_picture, shown] : {std::pair{"cp $0 $1", true},
                                            {"true", false},
                                            {"true >$1", false},
                                            {"head -c 6000 $0 >$1", false},
                                            {"mkdir $1", false}}) {
    SCOPED_TRACE(make_picture);
    // A program looks for the picture in its own folder.
    const TemporaryFolder folder;
    const std::string program = folder.Path() + "/vamo";
    Output({"cp", ProgramPath(), program});
    Output({"sh", "-c", make_picture, VAMO_CHART, folder.Path() + "/ChartSmall.jpg"});
    const auto journey = [expected = shown](OutsideUser& user) {
      // The content is 425 high, below the menu bar.
      const WindowOnScreen window = user.WindowTitled("Vamo");
      EXPECT_EQ(ShowsPicture(window, 9, window.height - 425 + 9), expected);
      ExpectResultsAfterTyping(user);
      user.Close("Vamo");
    };
    EXPECT_EQ(InControlWindow(journey, {program}), 0);
  }
}

TEST(Faults, AMessageOfQtWhileItReadsThePictureIsNoFault) {
  const auto journey = [](OutsideUser& user) {
    EXPECT_TRUE(ShowsPicture(user.WindowTitled(""), 104, 60));
  };
  RunProgramWith(journey, {"env", "QT_LOGGING_RULES=qt.core.library.debug=true", ProgramPath()});
}

TEST(Faults, WithoutASuitableDisplayOneLineSaysWhatToDo) {
  const std::string poor = std::string("DISPLAY=") + std::getenv("DISPLAY") + ".1";
  const std::string start =
      "no display to connect to; start it in a desktop session or set DISPLAY.";
  for (const auto& [setting, line] :
       {std::pair<std::string, std::string>{"DISPLAY=", start},
        {"DISPLAY=:9999", start},
        {"QT_QPA_PLATFORM=nonsense",
         "no display to connect to; QT_QPA_PLATFORM may not fit this desktop."},
        {poor, "the display has too few colours; it needs a depth of 15 bits."}}) {
    EXPECT_EQ(Output({"sh", "-c", "env $0 $1 2>&1; echo $?", setting, ProgramPath()}),
              "vamo: " + line + "\n1\n");
  }
}

TEST(Faults, ItEndsWithItsDisplayAndWhenTheSystemAsksForIt) {
  for (const auto& [fault, status] :
       {std::pair{"xdotool windowkill $0", 1}, {"kill $1", 256 + SIGTERM}}) {
    const auto journey = [command = fault](OutsideUser& user) {
      const std::string window = std::to_string(user.WindowTitled("Vamo").id);
      Output({"sh", "-c", command, window, std::to_string(user.Process())});
      Await([&] { return !user.Running(); });
    };
    EXPECT_EQ(InControlWindow(journey), status) << fault;
  }
}

TEST(Faults, AClipboardWhoseOwnerHangsDoesNotDelayTheProgram) {
  // The owner ends after it has answered twice.
  Child owner({"xclip", "-quiet", "-loops", "2", "-selection", "clipboard", "-i", VAMO_CHART});
  Output({"sh", "-c", "until xclip -selection clipboard -o; do sleep .1; done"});
  kill(owner.id(), SIGSTOP);
  InControlWindow([](OutsideUser& user) {
    ExpectResultsAfterTyping(user);
    user.Click(Role::kButton, "Info");
    EXPECT_EQ(user.ActiveTitle(), "Info");
  });
  kill(owner.id(), SIGCONT);
  EXPECT_NE(Output({"sh", "-c", "xclip -selection clipboard -o || true"}), "")
      << "the program has asked for the second answer";
}

TEST(Faults, ClosedStandardStreamsAreNotReused) {
  const auto journey = [](OutsideUser& user) {
    const std::string files = "/proc/" + std::to_string(user.Process()) + "/fd/";
    EXPECT_EQ(Output({"readlink", files + "0", files + "1", files + "2"}),
              "/dev/null\n/dev/null\n/dev/null\n");
    ExpectResultsAfterTyping(user);
    user.Close("Vamo");
  };
  const CommandLine without{"sh", "-c", "exec \"$0\" <&- >&- 2>&-", ProgramPath()};
  EXPECT_EQ(InControlWindow(journey, without), 0);
}

TEST(Faults, TwoProgramsAtTheSameTimeKeepTheirOwnNumbers) {
  InControlWindow([](OutsideUser& first) {
    ExpectResultsAfterTyping(first);
    const auto journey = [](OutsideUser& second) {
      EXPECT_EQ(FieldText(second, "r"), "");
      Retype(second, "r", ".9");
      second.Close("Vamo");
    };
    EXPECT_EQ(InControlWindow(journey), 0);
    first.LetTimePass(std::chrono::milliseconds(0));
    first.ActivateWindow("Vamo");
    EXPECT_EQ(FieldText(first, "r") + FieldText(first, "N"), ".530");
    EXPECT_EQ(ResultLine(first), "3.06 | .00490 | +.170 to +.729");
    ExpectResultsAfterTyping(first);
  });
}

}  // namespace
}  // namespace vamo
