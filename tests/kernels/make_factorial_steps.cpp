// Prints the long factorial run's own state every million factors, row by
// row of the checkpoint table, as calc/kernels/factorial.cpp keeps it:
//   c++ -O2 -std=c++20 tests/kernels/make_factorial_steps.cpp -o steps && ./steps
// The loop is the product's own, step for step, so carrying on from a state
// gives the very digits the whole run gives.
#include <cstdio>

int main() {
  struct Row {
    long first, below;
    long power;
    double mantissa;
  };
  const Row rows[] = {
      {171, 5000000, 306, 7.257415615308},
      {5000000, 9999999, 31323374, 4.58953592975217},
      {9999999, 50000000, 65657045, 1.20242352075819},
      {50000000, 99999999, 363233772, 4.6907607398619},
      {99999999, 123456790, 756570540, 1.61720381109038},
  };
  constexpr long kEvery = 1000000;
  for (int r = 0; r < 5; ++r) {
    long exponent = rows[r].power;
    double mantissa = rows[r].mantissa;
    for (long i = rows[r].first + 1; i < rows[r].below; ++i) {
      mantissa = mantissa * static_cast<double>(i);
      for (int k = 0; k < 11 && mantissa > 10; ++k) {
        mantissa = mantissa / 10;
        ++exponent;
      }
      if ((i - rows[r].first) % kEvery == 0)
        std::printf("    {%d, %ld, %ld, %a},\n", r, i, exponent, mantissa);
    }
  }
}
