// The form's answers against roots computed outside the product with numpy
// (make_equation_roots.py): every figure shown agrees with numpy's to the
// digits the answer text shows, within the rounding of the closed form.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

#include "tests/equations/eqtns_fixture.h"

namespace tessaron::test {
namespace {

struct Case {
  std::string kind, tag, answer;
  std::vector<std::string> coefs;
  std::vector<double> figures;
  double cond = 1;
};

std::vector<std::string> Split(const std::string& s, char sep) {
  std::vector<std::string> out;
  std::istringstream in(s);
  std::string f;
  while (std::getline(in, f, sep)) out.push_back(f);
  return out;
}

std::vector<Case> ReadCases() {
  std::ifstream in(EQUATION_ROOTS);
  std::vector<Case> cases;
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    const std::vector<std::string> f = Split(line, '\t');
    Case k{.kind = f[0], .tag = f[1], .answer = f[3], .coefs = Split(f[2], ',')};
    if (f.size() > 4 && k.answer != "singular") {
      for (const std::string& r : Split(f[4], ',')) k.figures.push_back(std::stod(r));
    } else if (k.answer != "real" && k.answer != "complex" && k.answer != "singular") {
      for (const std::string& r : Split(k.answer, ',')) k.figures.push_back(std::stod(r));
    }
    if (k.kind[0] == 'S' && k.answer != "singular") {
      k.figures.clear();
      for (const std::string& r : Split(k.answer, ',')) k.figures.push_back(std::stod(r));
      k.cond = std::stod(f[4]);
    }
    cases.push_back(k);
  }
  return cases;
}

// The figure an answer text shows: blanks and group commas dropped.
double Shown(const std::string& text) {
  std::string t;
  for (char ch : text)
    if (ch != ' ' && ch != ',') t += ch;
  char* end = nullptr;
  const double v = std::strtod(t.c_str(), &end);
  EXPECT_TRUE(!t.empty() && *end == '\0') << "not a figure: \"" << text << "\"";
  return v;
}

bool Blank(const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; }

// How far a shown figure may stand from numpy's: half a unit in the last
// place the text can show (11 decimals in the answer mask), plus the rounding
// a closed form carries, which for a system grows with its condition number.
// A repeated root is only as sharp as numpy's eigenvalues make it: about the
// square root of the rounding for a double root, the cube root for a triple.
double Allowed(const Case& k, double root) {
  const double scale = std::max(1.0, std::fabs(root));
  if (k.tag == "triple") return 2e-5 * scale;
  if (k.tag == "double" || k.tag == "equal") return 1e-7 * scale;
  if (k.kind[0] == 'S') return 1e-11 * scale * std::max(1.0, k.cond);
  return 0.5e-11 + 1e-10 * scale;
}

class EquationRoots : public EqtnsFixture {};

TEST_F(EquationRoots, AgreeWithNumpy) {
  const std::vector<Case> cases = ReadCases();
  ASSERT_GE(cases.size(), 300u);
  std::map<std::string, int> checked;
  for (const Case& k : cases) {
    SCOPED_TRACE(k.kind + " " + k.tag + " " + [&] {
      std::string s;
      for (const std::string& t : k.coefs) s += t + " ";
      return s;
    }());
    std::vector<std::pair<int, std::string>> boxes;
    int type = 0;
    if (k.kind == "Q" || k.kind == "C") {
      type = k.kind == "Q" ? 1 : 2;
      for (size_t i = 0; i < k.coefs.size(); ++i) boxes.push_back({int(i) + 1, k.coefs[i]});
    } else if (k.kind == "S2") {
      type = 3;
      const int place[] = {1, 2, 3, 5, 6, 7};
      for (size_t i = 0; i < 6; ++i) boxes.push_back({place[i], k.coefs[i]});
    } else {
      type = 4;
      for (size_t i = 0; i < 12; ++i) boxes.push_back({int(i) + 1, k.coefs[i]});
    }
    solve(type, boxes);
    ASSERT_TRUE(host.fatals.empty());

    if (k.kind == "Q" && k.answer == "complex") {
      const bool imaginary = k.coefs[1] == "0";
      EXPECT_EQ(answer(3),
                imaginary ? " 2 Imaginary Num." : " 2 Complex(including Imaginary) Num.");
      for (int i : {0, 1}) {
        const std::string t = answer(i);
        const size_t at = t.find(i == 0 ? "  +  i x " : "  -  i x ");
        ASSERT_NE(at, std::string::npos) << t;
        if (!imaginary) {
          EXPECT_NEAR(Shown(t.substr(0, at)), k.figures[0], Allowed(k, k.figures[0])) << t;
        }
        // The imaginary part is shown with the sign of a.
        EXPECT_NEAR(std::fabs(Shown(t.substr(at + 9))), k.figures[1], Allowed(k, k.figures[1]))
            << t;
      }
    } else if (k.kind == "S2" || k.kind == "S3") {
      if (k.answer == "singular") {
        EXPECT_EQ(answer(3),
                  k.kind == "S2" ? " No  Answer. " : " Sorry,  Not  Good  Here.           D=0");
        EXPECT_EQ(c("cmdGraph").Caption, "no Graph");
      } else {
        for (size_t i = 0; i < k.figures.size(); ++i)
          EXPECT_NEAR(Shown(answer(int(i))), k.figures[i], Allowed(k, k.figures[i]));
      }
    } else {
      std::vector<double> shown;
      // The quadratic's third row is its discriminant.
      for (int i = 0; i <= (k.kind == "Q" ? 1 : 2); ++i)
        if (!Blank(answer(i))) shown.push_back(Shown(answer(i)));
      std::sort(shown.begin(), shown.end());
      ASSERT_EQ(shown.size(), k.figures.size())
          << answer(0) << "|" << answer(1) << "|" << answer(2) << "|" << answer(3);
      for (size_t i = 0; i < shown.size(); ++i)
        EXPECT_NEAR(shown[i], k.figures[i], Allowed(k, k.figures[i])) << answer(3);
      if (k.kind == "Q")
        EXPECT_EQ(answer(3), k.tag == "equal" ? " Same Numbers " : " 2 different Real Numbers ");
    }
    ++checked[k.kind];
  }
  EXPECT_GE(checked["Q"], 100);
  EXPECT_GE(checked["C"], 100);
  EXPECT_GE(checked["S2"], 40);
  EXPECT_GE(checked["S3"], 40);
}

}  // namespace
}  // namespace tessaron::test
