// The streams of the program's windows and controls, as the reader receives them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controlwnd/accessors.h"
#include "numbers.h"
#include "test_program.h"
#include "toolkit/object/property_stream.h"

namespace vamo {
namespace {

std::vector<std::uint64_t> taken_digests;

}  // namespace

// Replaces the toolkit's reader at link time and sets nothing.
void _SetProperties(Object& /*object*/, PropertyStream stream) {
  // From the length byte to the closing zero.
  taken_digests.push_back(Digest(std::string_view(stream.bytes, stream.length + 2)));
}

namespace {

TEST(StreamsTest, EachReachesTheReaderAsItWasDesigned) {
  // In the order of creation: the control window, the About window, the Info window.
  const std::vector<std::uint64_t> kDesigned{
      0xC990486011ED7A84, 0x9A85954F47BBEC5D, 0x137C581727007A66, 0x1819A723DEF739FF,
      0x8C7D512218CA101,  0x1529E0D3D2DCC7C,  0x810FA4D76B43391C, 0x5CECC4D43F62D067,
      0x8F0926DD84EE1F72, 0xE10E57D4781C4911, 0x3C2BE82773E1640E, 0x9DE6A97827B975F6,
      0xF5669DE679C55983, 0xE1571E47D625971D, 0x7666FE2E5C59752E, 0x19BB397C24A20B80,
      0xDE6A8126FF76F601, 0x65A2A30E269C214B, 0x85ACE29656DD0F50, 0xADE2394C9F8582C6,
      0x81910CB037F065A,  0x8EB23D3004097E89, 0x34E3BBD4DB35B996, 0xBA783B750DBA827D,
      0x610A32E6561D556C, 0xD323985ABE377867, 0xA7C1738AC47CC3C6, 0xAD913AE01FBDEC77,
      0x550E967582C2B3EC, 0xE6A7C92E620D1740,
  };
  TestProgram program;
  ControlWnd();
  AboutWnd();
  InfoWnd();
  EXPECT_EQ(taken_digests, kDesigned);
}

}  // namespace
}  // namespace vamo
