#pragma once
// Makes seeded, reproducible random script lines: every action a user can
// take on the suite's forms, learned from the forms themselves (their design
// tables, as loaded), with hostile text for the boxes and the input box.
#include <cstdint>
#include <random>
#include <string>

namespace tessaron {
class Application;
}

namespace tessaron::fuzz {

class Generator {
 public:
  explicit Generator(uint64_t seed) : rng_(seed) {}
  // The next action, as a script line, for the application as it stands.
  std::string next(const Application& app);

 private:
  int below(int n) { return static_cast<int>(rng_() % static_cast<uint64_t>(n)); }
  bool chance(int percent) { return below(100) < percent; }
  std::string text();
  int character();
  int keyCode();
  std::mt19937_64 rng_;
};

}  // namespace tessaron::fuzz
