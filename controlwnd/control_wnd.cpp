// The control window: from the user's input to r and N, and from these to the texts that it shows.
#include "controlwnd/control_wnd.h"

#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"
#include "toolkit/runtime/key.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

constexpr double kLowestR = 0.0;
constexpr double kHighestR = 0.99999;

bool IsDigit(std::int64_t code) { return code >= '0' && code <= '9'; }

// The control codes that every key filter lets through.
bool IsControlCode(std::int64_t code) {
  constexpr std::int64_t kDataLinkEscape = 16;
  return code == kBackspace || code == kTab || code == kDataLinkEscape;
}

// The result of a key filter: False lets the key through; True swallows it, with a beep.
bool Refuse(bool passes) {
  if (passes) return false;
  Beep();
  return true;
}

}  // namespace

void ControlWnd::DoIt(double rArg, std::int64_t /*nArg*/) {
  const std::int64_t n = Truncate(Val(nEdit()->Text()));
  chart_.Follow({rArg, n});
  if (n > kHighestN) {
    Beep();
    nText()->SetVisible(true);
    tText()->SetText("");
    pText()->SetText("");
    ciText()->SetText("");
    return;
  }
  t = ComputeT(rArg, n);
  tText()->SetText(Format(t, "#####.00"));
  p = ComputeP(t, n);
  pText()->SetText(Format(p, ".00000"));
  const Interval interval = ComputeInterval(rArg, n);
  ciText()->SetText(Format(interval.lo, "+.000") + " to " + Format(interval.hi, "+.000"));
}

bool ControlWnd::rEdit_KeyDown(Ref<TextField> /*sender*/, std::string key) {
  const std::int64_t code = Asc(key);
  return Refuse(IsDigit(code) || code == '.' || IsControlCode(code));
}

// A write to rEdit runs this handler again, inside the write. So the rest of the handler reads r
// from the member, which the inner call may have changed.
void ControlWnd::rEdit_TextChange(Ref<TextField> /*sender*/) {
  r = Val(rEdit()->Text());
  if (r < kLowestR) {
    r = kLowestR;
    rEdit()->SetText(".000");
  }
  if (r > kHighestR) {
    r = kHighestR;
    rEdit()->SetText(".99999");
  }
  DoIt(r, N);
  z = FisherZ(r);
  zFld()->SetText(Format(z, "##0.000"));
}

void ControlWnd::rSlider_ValueChanged(Ref<Slider> /*sender*/) {
  r = static_cast<double>(rSlider()->Value()) / static_cast<double>(kPositionsPerR);
  rEdit()->SetText(Format(r, ".000"));
  DoIt(r, N);
}

bool ControlWnd::nEdit_KeyDown(Ref<TextField> /*sender*/, std::string key) {
  const std::int64_t code = Asc(key);
  return Refuse(IsDigit(code) || IsControlCode(code));
}

// For N above the maximum, this handler hides the warning and DoIt shows it again.
void ControlWnd::nEdit_TextChange(Ref<TextField> /*sender*/) {
  N = Truncate(Val(nEdit()->Text()));
  if (N < kLowestN) {
    Beep();
    nText()->SetVisible(true);
  }
  if (N > kLowestN - 1) nText()->SetVisible(false);
  DoIt(r, N);
}

void ControlWnd::nSlider_ValueChanged(Ref<Slider> /*sender*/) {
  N = nSlider()->Value();
  nEdit()->SetText(Str(N, ""));
  DoIt(r, N);
}

}  // namespace vamo
