// From outside: how the program copes with faults in its environment.
#include <gtest/gtest.h>
#include <signal.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "desktop.h"
#include "steps.h"

namespace vamo {
namespace {

namespace fs = std::filesystem;

void ExpectResultsAfterTyping(OutsideUser& user) {
  Retype(user, "N", "30");
  Retype(user, "r", ".5");
  EXPECT_EQ(ResultLine(user), "3.06 | .00490 | +.170 to +.729");
}

void AwaitEnd(OutsideUser& user) {
  Await([&] { return !user.Running(); });
}

// Whether a window shows more than one colour in the area of its picture, 92 by 72 pixels.
bool ShowsPicture(const WindowOnScreen& window, int left, int top) {
  const std::string place = "92x72+" + std::to_string(left) + "+" + std::to_string(top);
  return Output({"convert", "x:" + std::to_string(window.id), "-crop", place, "+repage", "-format",
                 "%k", "info:"}) != "1";
}

// A copy of the program with its own picture file.
class Copy {
 public:
  Copy() { fs::copy_file(ProgramPath(), Program()); }
  fs::path Program() const { return folder_.Path() / "vamo"; }
  fs::path Picture() const { return folder_.Path() / "ChartSmall.jpg"; }

 private:
  const TemporaryFolder folder_;
};

void WritePicture(const Copy& copy, std::size_t length) {
  std::ifstream whole(VAMO_CHART, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(whole), {}};
  ASSERT_GT(bytes.size(), length);
  std::ofstream(copy.Picture(), std::ios::binary) << bytes.substr(0, length);
}

TEST(Faults, ABrokenPictureLeavesItsPlaceEmpty) {
  struct Case {
    const char* what;
    std::function<void(const Copy&)> make;
    bool shown;
  };
  const Case kCases[] = {
      {"as it should be", [](const Copy& copy) { fs::copy_file(VAMO_CHART, copy.Picture()); },
       true},
      {"missing", [](const Copy&) {}, false},
      {"empty", [](const Copy& copy) { WritePicture(copy, 0); }, false},
      {"cut short", [](const Copy& copy) { WritePicture(copy, 6000); }, false},
      {"a folder", [](const Copy& copy) { fs::create_directory(copy.Picture()); }, false},
  };
  for (const Case& test : kCases) {
    SCOPED_TRACE(test.what);
    const Copy copy;
    test.make(copy);
    const auto journey = [&](OutsideUser& user) {
      // The content is 425 high, below the menu bar.
      const WindowOnScreen window = user.WindowTitled("Vamo");
      EXPECT_EQ(ShowsPicture(window, 9, window.height - 425 + 9), test.shown);
      ExpectResultsAfterTyping(user);
      user.Close("Vamo");
    };
    EXPECT_EQ(InControlWindow({}, journey, {copy.Program()}), 0);
  }
}

TEST(Faults, AMessageOfQtWhileItReadsThePictureIsNoFault) {
  FromTheStart({{"QT_LOGGING_RULES", "qt.core.library.debug=true"}}, [](OutsideUser& user) {
    EXPECT_TRUE(ShowsPicture(user.WindowTitled(""), 104, 60));
  });
}

TEST(Faults, WithoutADisplayOneLineSaysWhatToDo) {
  const auto expect_line = [](const Environment& settings, const std::string& advice) {
    const Ended ended = RunToEnd({ProgramPath()}, {}, settings);
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.err, "vamo: no display to connect to; " + advice + ".\n");
  };
  expect_line({{"DISPLAY", ""}}, "start it in a desktop session or set DISPLAY");
  expect_line({{"DISPLAY", ":9999"}}, "start it in a desktop session or set DISPLAY");
  expect_line({{"QT_QPA_PLATFORM", "nonsense"}}, "QT_QPA_PLATFORM may not fit this desktop");
}

TEST(Faults, OneLineSaysThatADisplayHasTooFewColours) {
  const Ended ended =
      RunToEnd({ProgramPath()}, {}, {{"DISPLAY", std::string(std::getenv("DISPLAY")) + ".1"}});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.err, "vamo: the display has too few colours; it needs a depth of 15 bits.\n");
}

TEST(Faults, ABrokenConnectionToTheDisplayEndsTheProgram) {
  const auto journey = [](OutsideUser& user) {
    Output({"xdotool", "windowkill", std::to_string(user.WindowTitled("Vamo").id)});
    AwaitEnd(user);
  };
  EXPECT_EQ(InControlWindow({}, journey), 1);
}

TEST(Faults, AClipboardWhoseOwnerHangsDoesNotDelayTheProgram) {
  Child owner({"xclip", "-quiet", "-selection", "clipboard", "-i", VAMO_CHART}, {});
  const auto offers = [] {
    try {
      return !OpenDesktop()->Offered("clipboard").empty();
    } catch (const std::runtime_error&) {
      return false;  // It does not offer it yet.
    }
  };
  ASSERT_TRUE(Await(offers));
  kill(owner.id(), SIGSTOP);
  InControlWindow({}, [](OutsideUser& user) {
    ExpectResultsAfterTyping(user);
    user.Click(Role::kButton, "Info");
    EXPECT_EQ(user.ActiveTitle(), "Info");
  });
}

TEST(Faults, TheProgramEndsAtOnceWhenTheSystemAsksForIt) {
  const auto journey = [](OutsideUser& user) {
    ExpectResultsAfterTyping(user);
    kill(user.Process(), SIGTERM);
    AwaitEnd(user);
  };
  EXPECT_EQ(InControlWindow({}, journey), 256 + SIGTERM);
}

TEST(Faults, ClosedStandardStreamsAreNotReused) {
  const auto journey = [](OutsideUser& user) {
    const fs::path files = "/proc/" + std::to_string(user.Process()) + "/fd";
    for (const char* stream : {"0", "1", "2"}) {
      EXPECT_EQ(fs::read_symlink(files / stream), "/dev/null") << stream;
    }
    ExpectResultsAfterTyping(user);
    user.Close("Vamo");
  };
  const std::vector<std::string> without{"sh", "-c", "exec \"$0\" <&- >&- 2>&-", ProgramPath()};
  EXPECT_EQ(InControlWindow({}, journey, without), 0);
}

TEST(Faults, TwoProgramsAtTheSameTimeKeepTheirOwnNumbers) {
  InControlWindow({}, [](OutsideUser& first) {
    ExpectResultsAfterTyping(first);
    const auto journey = [](OutsideUser& second) {
      EXPECT_EQ(FieldText(second, "r"), "");
      Retype(second, "r", ".9");
      second.Close("Vamo");
    };
    EXPECT_EQ(InControlWindow({}, journey), 0);
    first.LetTimePass(std::chrono::milliseconds(0));
    first.ActivateWindow("Vamo");
    EXPECT_EQ(FieldText(first, "r") + FieldText(first, "N"), ".530");
    EXPECT_EQ(ResultLine(first), "3.06 | .00490 | +.170 to +.729");
    ExpectResultsAfterTyping(first);
  });
}

}  // namespace
}  // namespace vamo
