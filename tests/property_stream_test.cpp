// Writing and reading the byte format of property streams.
#include "toolkit/object/property_stream.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "test_program.h"
#include "toolkit/control/label.h"
#include "toolkit/control/properties.h"
#include "toolkit/control/rectangle.h"
#include "toolkit/control/slider.h"

namespace vamo {
namespace {

using std::string_literals::operator""s;

std::string Stored(PropertyStream stream) { return {stream.bytes, stream.length + 2}; }

TEST(StreamWriterTest, WritesEachTypeAsItIsStored) {
  const std::string stored = Stored(EncodedStream<640>()
                                        .Set(property::kLeft, 55)
                                        .Set(property::kTop, -5)
                                        .Set(property::kFontSize, 12.0F)
                                        .Set(property::kBorderThickness, 1.0)
                                        .Set(property::kFillColor, Colour{0x80, 0x01, 0x02})
                                        .Set(property::kVisible, true)
                                        .Set(property::kName, "rEdit")
                                        .Set(property::kTooltip, ""));
  EXPECT_EQ(stored.substr(1),
            "Left \x37\0\0\0\0\0\0\0"
            "Top \xFB\xFF\xFF\xFF\xFF\xFF\xFF\xFF"
            "FontSize \0\0\x40\x41"
            "BorderThickness \0\0\0\0\0\0\xF0\x3F"
            "FillColor \x80\x01\x02\0"
            "Visible \x01"
            "Name \x05\0\0\0rEdit"
            "Tooltip \0\0\0\0\0"s);
}

TEST(StreamWriterTest, TheLengthByteHoldsShortLengthsOnly) {
  // The 245 bytes of the text follow a name, a space and a length of 4 bytes.
  static constexpr std::array<char, 245> kText{};
  static constexpr std::string_view kLong(kText.data(), kText.size());
  constexpr property::Text kHints{"Hints"};
  EXPECT_EQ(Stored(EncodedStream<300>().Set(property::kHint, kLong))[0], '\xFE');
  const std::string at_bound = Stored(EncodedStream<255>().Set(kHints, kLong));
  EXPECT_EQ(at_bound[0], '\xFF');
  EXPECT_EQ(at_bound.back(), '\0');
  EXPECT_THROW(EncodedStream<254>().Set(kHints, kLong), std::out_of_range);
}

TEST(StreamReaderTest, ReadsByTheTypesOfTheClass) {
  TestProgram program;
  const auto slider = New<Slider>();
  _SetProperties(*slider, EncodedStream<640>()
                              .Set(property::kPosition, 300)
                              .Set(property::kMinimumValue, 4)
                              .Set(property::kMaximumValue, 1000));
  EXPECT_EQ(slider->Value(), 300) << "the position comes before the range";

  const auto label = New<Label>();
  _SetProperties(*label, EncodedStream<640>()
                             .Set(property::kFontSize, 8.0F)
                             .Set(property::kFontSize, 9.0F)
                             .Set(property::kTextColor, Colour{0xFF, 0x80, 0}));
  EXPECT_EQ(label->Font().size, 9.0F) << "the later one stands";
  EXPECT_EQ(label->TextColour(), (Colour{0xFF, 0x80, 0}));
  const auto tab_stop = EncodedStream<640>().Set(property::kTabStop, false);
  _SetProperties(*label, tab_stop);
  EXPECT_FALSE(label->TabStop());
  EXPECT_THROW(_SetProperties(*New<Rectangle>(), tab_stop), InvalidArgumentException);
}

TEST(StreamReaderTest, ABrokenStreamRaisesAnExceptionAndKeepsWhatWasSet) {
  const std::string top = "Top \x07\0\0\0\0\0\0\0"s;
  TestProgram program;
  for (const auto& [entries, place] :
       {std::pair{top + "Nonsense \x01"s, "\"Nonsense\" at offset 12"},
        {top + "Left \x01\0\0"s, "\"Left\" at offset 12"},
        {top + "Tooltip \xFF\xFF\xFF\xFF"s, "\"Tooltip\" at offset 12"},
        {top + "Visib"s, "\"Visib\" at offset 12"},
        {"Visible "s, "\"Visible\" at offset 0"}}) {
    const auto label = New<Label>();
    const std::string stream = "\xFF" + entries + '\0';
    try {
      _SetProperties(*label, {stream.data(), stream.size() - 2});
      ADD_FAILURE() << place;
    } catch (const InvalidArgumentException& exception) {
      EXPECT_NE(exception.Message().find(place), std::string::npos) << exception.Message();
    }
    EXPECT_EQ(label->Bounds().top, entries[0] == 'T' ? 7 : 0);
  }
}

// The copies are on the heap and have the exact size, so that the sanitizers see a read past the
// end.
TEST(StreamReaderTest, AStreamIsReadToItsEndAtMost) {
  TestProgram program;
  const std::string whole =
      Stored(EncodedStream<640>().Set(property::kTop, 7).Set(property::kTooltip, "tip"));
  for (std::size_t length = 0; length < whole.size() - 2; ++length) {
    const auto stream = std::make_unique<char[]>(length + 2);
    whole.copy(stream.get(), length + 1);
    const bool complete = length == 0 || length == 12;
    try {
      _SetProperties(*New<Label>(), {stream.get(), length});
      EXPECT_TRUE(complete) << length;
    } catch (const InvalidArgumentException&) {
      EXPECT_FALSE(complete) << length;
    }
  }
}

}  // namespace
}  // namespace vamo
