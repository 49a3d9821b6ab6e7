// The streams of the program's windows and controls, as they reach the reader.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controlwnd/accessors.h"
#include "test_program.h"
#include "toolkit/object/property_stream.h"

namespace vamo {
namespace {

struct TakenStream {
  std::string class_name;
  std::size_t length;
  std::uint64_t digest;
};

std::vector<TakenStream> taken_streams;

// FNV-1a, in 64 bits, of all bytes from the length byte to the closing zero.
std::uint64_t Digest(PropertyStream stream) {
  std::uint64_t digest = 0xCBF29CE484222325;
  for (const char byte : std::string_view(stream.bytes, stream.length + 2)) {
    digest = (digest ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  }
  return digest;
}

}  // namespace

// The linker takes this reader for the toolkit's, and so nothing is set here.
void _SetProperties(Object& object, PropertyStream stream) {
  taken_streams.push_back({ClassName(object), stream.length, Digest(stream)});
}

namespace {

TEST(StreamsTest, EachReachesTheReaderAsItWasDesigned) {
  const TakenStream kDesigned[] = {
      {"ControlWnd.ControlWnd", 371, 0xC990486011ED7A84},
      {"TextField", 570, 0x9A85954F47BBEC5D},
      {"TextField", 570, 0x137C581727007A66},
      {"Rectangle", 326, 0x1819A723DEF739FF},
      {"Canvas", 332, 0x8C7D512218CA101},
      {"Label", 429, 0x1529E0D3D2DCC7C},
      {"Label", 443, 0x810FA4D76B43391C},
      {"Rectangle", 326, 0x5CECC4D43F62D067},
      {"Slider", 388, 0x8F0926DD84EE1F72},
      {"Slider", 388, 0xE10E57D4781C4911},
      {"Label", 428, 0x3C2BE82773E1640E},
      {"Label", 428, 0x9DE6A97827B975F6},
      {"Label", 431, 0xF5669DE679C55983},
      {"Label", 437, 0xE1571E47D625971D},
      {"TextField", 565, 0x7666FE2E5C59752E},
      {"PushButton", 373, 0x19BB397C24A20B80},
      {"Rectangle", 326, 0xDE6A8126FF76F601},
      {"Label", 438, 0x65A2A30E269C214B},
      {"Label", 438, 0x85ACE29656DD0F50},
      {"Label", 429, 0xADE2394C9F8582C6},
      {"Label", 448, 0x81910CB037F065A},
      {"Label", 430, 0x8EB23D3004097E89},
      {"Label", 429, 0x34E3BBD4DB35B996},
      {"AboutWnd.AboutWnd", 367, 0xBA783B750DBA827D},
      {"Label", 481, 0x610A32E6561D556C},
      {"Canvas", 322, 0xD323985ABE377867},
      {"Label", 429, 0xA7C1738AC47CC3C6},
      {"_wrapper_Timer1", 31, 0xAD913AE01FBDEC77},
      {"InfoWnd.InfoWnd", 371, 0x550E967582C2B3EC},
      {"TextArea", 1592, 0xE6A7C92E620D1740},
  };
  TestProgram program;
  ControlWnd();
  AboutWnd();
  InfoWnd();
  ASSERT_EQ(taken_streams.size(), std::size(kDesigned));
  for (std::size_t i = 0; i < taken_streams.size(); ++i) {
    const TakenStream& taken = taken_streams[i];
    EXPECT_EQ(taken.class_name, kDesigned[i].class_name) << i;
    EXPECT_EQ(taken.length, kDesigned[i].length) << i;
    EXPECT_EQ(taken.digest, kDesigned[i].digest) << i << std::hex << " 0x" << taken.digest;
  }
}

}  // namespace
}  // namespace vamo
