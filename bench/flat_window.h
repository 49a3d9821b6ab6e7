// What one move of a slider of the control window comes to, without any window.
#ifndef VAMO_BENCH_FLAT_WINDOW_H_
#define VAMO_BENCH_FLAT_WINDOW_H_

#include <cstdint>
#include <string>

namespace vamo {

// The texts of the control window and the way from a position of the slider of r to them, in plain
// variables: all that the program computes and formats for one move, both calculations included. It
// has no controls, no events and no display.
class FlatWindow {
 public:
  explicit FlatWindow(std::string n_edit) : n_edit_(std::move(n_edit)) {}

  // The slider of r has come to a position from 0 to 99.
  void MoveR(std::int64_t position);

  // The five texts that the move has changed, separated by blanks.
  std::string Texts() const;

 private:
  void DoIt(double r);

  std::string n_edit_;
  std::string r_edit_;
  std::string t_text_;
  std::string p_text_;
  std::string ci_text_;
  std::string z_field_;
};

}  // namespace vamo

#endif  // VAMO_BENCH_FLAT_WINDOW_H_
