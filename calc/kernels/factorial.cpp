// The factorial: a Real up to 170!, beyond that a text carried on from the
// nearest checkpoint below x, since no Real holds 171!.
#include <cmath>

#include "calc/kernels/elementary.h"

namespace tessaron::kernels {

namespace {

// A row names its first factor and the product the long run reached there;
// carrying on multiplies from the factor after it, as the table has always
// been read, so 171 shows the row's own product.
constexpr FactorialCheckpoint kCheckpoints[] = {
    {171, 5000000, 171, 306, 7.257415615308},
    {5000000, 9999999, 5000000, 31323374, 4.58953592975217},
    {9999999, 50000000, 9999999, 65657045, 1.20242352075819},
    {50000000, 99999999, 50000000, 363233772, 4.6907607398619},
    {99999999, 123456789, 99999999, 756570540, 1.61720381109038},
};
constexpr long kLargest = 123456789;

// The long run's own state every million factors after each row's first, so
// that a large x is carried on from the nearest state below it: the same
// multiplications in the same order, a million at most instead of up to
// fifty, and the very digits of the whole run. Made by
// tests/kernels/make_factorial_steps.cpp, which runs the loop itself.
struct Step {
  int row;
  long last;  // the last factor taken
  long exponent;
  double mantissa;
};
// clang-format off
constexpr Step kSteps[] = {
    {0, 1000171, 5566732, 0x1.39e00ab429c8ep+2},
    {0, 2000171, 11734549, 0x1.aa3810768595dp+2},
    {0, 3000171, 18129589, 0x1.072252ca64c02p+1},
    {0, 4000171, 24672192, 0x1.7008ad5d0c745p+1},
    {1, 6000000, 38063137, 0x1.40d13fb95d126p+2},
    {1, 7000000, 44875622, 0x1.11f590dc40cf7p+0},
    {1, 8000000, 51750361, 0x1.8eabb9867ee9cp+0},
    {1, 9000000, 58679529, 0x1.549fdbd0bdd37p+1},
    {2, 10999999, 72678070, 0x1.4cfed64ab0bcep+0},
    {2, 11999999, 79738631, 0x1.11d2fd96dd38bp+0},
    {2, 12999999, 86835425, 0x1.6fcb508dc39b6p+0},
    {2, 13999999, 93965659, 0x1.e56262832b0abp+1},
    {2, 14999999, 101126941, 0x1.784e405890d77p+1},
    {2, 15999999, 108317197, 0x1.9c565ff2a10c5p+2},
    {2, 16999999, 115534615, 0x1.cc72c2d48d7ddp+0},
    {2, 17999999, 122777594, 0x1.8ba28d374849ep+0},
    {2, 18999999, 130044713, 0x1.0d16a6cdc8dbp+0},
    {2, 19999999, 137334700, 0x1.0e6a0aabf7c4ep+0},
    {2, 20999999, 144646410, 0x1.9ac67a1aa84eap+2},
    {2, 21999999, 151978810, 0x1.4556aedd9c9d6p+0},
    {2, 22999999, 159330956, 0x1.d2b2abdf8326ap+2},
    {2, 23999999, 166701991, 0x1.19895d9667d6ep+3},
    {2, 24999999, 174091127, 0x1.d9b7b9d872cb6p+2},
    {2, 25999999, 181497640, 0x1.9e92700ad158ap+0},
    {2, 26999999, 188920860, 0x1.01f14873e74dep+1},
    {2, 27999999, 196360169, 0x1.25cb1b63cfc2ap+0},
    {2, 28999999, 203814991, 0x1.121fa236634bap+2},
    {2, 29999999, 211284792, 0x1.bfebd580e311ep+2},
    {2, 30999999, 218769073, 0x1.ac10e5f68ddap+0},
    {2, 31999999, 226267365, 0x1.b391e70d1c18ap+1},
    {2, 32999999, 233779231, 0x1.6a63c999689a9p+2},
    {2, 33999999, 241304260, 0x1.56fe7adddd96ap+1},
    {2, 34999999, 248842064, 0x1.06f92e47d315cp+1},
    {2, 35999999, 256392278, 0x1.fed6c2c90d2abp+0},
    {2, 36999999, 263954557, 0x1.e11fe744b5196p+1},
    {2, 37999999, 271528575, 0x1.297bdcc4f709dp+3},
    {2, 38999999, 279114024, 0x1.858f585b0e902p+1},
    {2, 39999999, 286710609, 0x1.2e221659859e8p+3},
    {2, 40999999, 294318053, 0x1.23f5d8c1bb09bp+3},
    {2, 41999999, 301936091, 0x1.c02d922d824fp+1},
    {2, 42999999, 309564470, 0x1.691dfd70da34fp+1},
    {2, 43999999, 317202950, 0x1.6093761a6e5cfp+0},
    {2, 44999999, 324851301, 0x1.03ff271ec8beep+0},
    {2, 45999999, 332509303, 0x1.22ddd9bd006b2p+2},
    {2, 46999999, 340176748, 0x1.b95fc8a83338dp+0},
    {2, 47999999, 347853433, 0x1.a7f4e5c5da08dp+2},
    {2, 48999999, 355539167, 0x1.d1eb13d83a05p+2},
    {2, 49999999, 363233765, 0x1.2c356e806e83bp+2},
    {3, 51000000, 370937056, 0x1.226439b5569a2p+3},
    {3, 52000000, 378648857, 0x1.2acb4ad7b32fep+1},
    {3, 53000000, 386369010, 0x1.49f6edb9370c9p+0},
    {3, 54000000, 394097357, 0x1.dff1ec2eba7aap+1},
    {3, 55000000, 401833747, 0x1.3723d57fb681ep+3},
    {3, 56000000, 409578035, 0x1.4244f571120bep+0},
    {3, 57000000, 417330077, 0x1.e8bf32c7301ep+2},
    {3, 58000000, 425089740, 0x1.cfce2411fb2ap+0},
    {3, 59000000, 432856890, 0x1.baea48dfaa216p+2},
    {3, 60000000, 440631402, 0x1.3f4cd28d42a0ep+2},
    {3, 61000000, 448413153, 0x1.5b33ebda1065bp+0},
    {3, 62000000, 456202023, 0x1.77550dbd5ec5ep+1},
    {3, 63000000, 463997898, 0x1.cad18c08270eap+2},
    {3, 64000000, 471800668, 0x1.3f9a4f9e1bb62p+0},
    {3, 65000000, 479610223, 0x1.75216c7d8f82bp+1},
    {3, 66000000, 487426460, 0x1.c6341fa528c18p+1},
    {3, 67000000, 495249278, 0x1.473758d3ac593p+0},
    {3, 68000000, 503078577, 0x1.04b1176ed44fcp+3},
    {3, 69000000, 510914264, 0x1.10709c6428253p+2},
    {3, 70000000, 518756245, 0x1.39c692bbe9c2ep+2},
    {3, 71000000, 526604431, 0x1.7a5dcad4f1613p+0},
    {3, 72000000, 534458733, 0x1.2eae0357aed6ap+2},
    {3, 73000000, 542319068, 0x1.be8ead381c82bp+0},
    {3, 74000000, 550185352, 0x1.b6c2a540cba55p+0},
    {3, 75000000, 558057505, 0x1.c67d63bac4ae3p+0},
    {3, 76000000, 565935449, 0x1.11d1097ae1542p+0},
    {3, 77000000, 573819107, 0x1.2f9a5a6af724ep+1},
    {3, 78000000, 581708406, 0x1.2b18a6726c86p+0},
    {3, 79000000, 589603272, 0x1.8b184ba49d3a4p+2},
    {3, 80000000, 597503637, 0x1.2516e82212aacp+0},
    {3, 81000000, 605409430, 0x1.6915ccdd4e5eep+0},
    {3, 82000000, 613320585, 0x1.1665b2275274ep+0},
    {3, 83000000, 621237036, 0x1.10f80a3142792p+1},
    {3, 84000000, 629158720, 0x1.a0b36e8e66a9dp+0},
    {3, 85000000, 637085574, 0x1.39500591caf11p+1},
    {3, 86000000, 645017538, 0x1.12b60df90785p+0},
    {3, 87000000, 652954551, 0x1.518481e3d3e6ep+2},
    {3, 88000000, 660896557, 0x1.4c1fad2597e1bp+1},
    {3, 89000000, 668843498, 0x1.30cffdf3953d9p+1},
    {3, 90000000, 676795319, 0x1.6e3539cc79dp+0},
    {3, 91000000, 684751965, 0x1.af64e37d4447dp+1},
    {3, 92000000, 692713384, 0x1.7376909aaf19cp+1},
    {3, 93000000, 700679524, 0x1.35d2eb139cc9bp+0},
    {3, 94000000, 708650333, 0x1.0e99ecf0deeadp+2},
    {3, 95000000, 716625763, 0x1.4979c3dcc960dp+1},
    {3, 96000000, 724605764, 0x1.942179d09e371p+2},
    {3, 97000000, 732590290, 0x1.7d06fcb697f36p+0},
    {3, 98000000, 740579292, 0x1.ed77bd410a736p+2},
    {3, 99000000, 748572727, 0x1.cc2a152dec09p+0},
    {4, 100999999, 764572704, 0x1.7fab7c24c4a92p+1},
    {4, 101999999, 772579168, 0x1.709940a77e1e9p+2},
    {4, 102999999, 780589890, 0x1.fddb9b382b38ap+2},
    {4, 103999999, 788604829, 0x1.d06d8421c3a6ap+1},
    {4, 104999999, 796623944, 0x1.8d689cf729ecp+0},
    {4, 105999999, 804647195, 0x1.0dc5cc9addbe6p+0},
    {4, 106999999, 812674543, 0x1.1440d96205157p+0},
    {4, 107999999, 820705949, 0x1.0fffc2ac30005p+3},
    {4, 108999999, 828741378, 0x1.581ab7b0ab2dep+0},
    {4, 109999999, 836780790, 0x1.5cd5e09ad5171p+2},
    {4, 110999999, 844824151, 0x1.b234e51ba01cap+1},
    {4, 111999999, 852871424, 0x1.16f34fa6934e5p+3},
    {4, 112999999, 860922576, 0x1.1302bfda22171p+0},
    {4, 113999999, 868977570, 0x1.87f41eaf8a12bp+1},
    {4, 114999999, 877036374, 0x1.f296b08d498bbp+1},
    {4, 115999999, 885098955, 0x1.a55a67c78691ap+0},
    {4, 116999999, 893165279, 0x1.9a0347d13e9b8p+2},
    {4, 117999999, 901235316, 0x1.25b22af8b726dp+1},
    {4, 118999999, 909309033, 0x1.5117fbf125d36p+1},
    {4, 119999999, 917386400, 0x1.23c92545d6cc8p+0},
    {4, 120999999, 925467385, 0x1.cb10a62e20363p+2},
    {4, 121999999, 933551960, 0x1.01bd8d5dd8c32p+3},
    {4, 122999999, 941640095, 0x1.87fabeeea7d82p+2},
};
// clang-format on

// The row's own start, or the latest state of its run at or below n.
void NearestStart(int row, long n, long& start, long& exponent, double& mantissa) {
  const FactorialCheckpoint& c = kCheckpoints[row];
  start = c.first;
  exponent = c.power;
  mantissa = c.mantissa;
  for (const Step& s : kSteps)
    if (s.row == row && s.last <= n) {
      start = s.last;
      exponent = s.exponent;
      mantissa = s.mantissa;
    }
}

}  // namespace

const FactorialCheckpoint* FactorialCheckpoints(int& count) {
  count = static_cast<int>(std::size(kCheckpoints));
  return kCheckpoints;
}

std::string PubFactorial(long start, long exponent, double mantissa, long x) {
  for (long i = start + 1; i <= x; ++i) {
    mantissa = mantissa * static_cast<double>(i);
    for (int k = 0; k < 11 && mantissa > 10; ++k) {
      mantissa = mantissa / 10;
      ++exponent;
    }
  }
  return Format(Value(x), " ###,###,###") + " ! = " + Format(Value(mantissa), "0.###########") +
         "E+" + CStr(Value(exponent));
}

Outcome NFac(const Value& x) {
  const double v = x.number();
  if (v == 0) return Shown(Value(1.0), " n! ");
  if (v < 0 || v != std::floor(v))
    return Refused(Act::Stop, " 0 or Positive Integer Only !!!",
                   "  Factorial :  0! = 1 ,  n! = 1 x 2 x ... x n ");
  if (v < 171) {
    double r = 1;
    for (int i = 1; i <= static_cast<int>(v); ++i) r = r * i;
    return Shown(Value(r), " n! ");
  }
  if (v > kLargest) return Refused(Act::Stop, "Sorry, Really need it ?? ");
  const long n = static_cast<long>(v);
  for (int r = 0; r < static_cast<int>(std::size(kCheckpoints)); ++r) {
    const auto& row = kCheckpoints[r];
    if (n >= row.from && (n < row.below || (n == kLargest && row.below == kLargest))) {
      Outcome o;
      o.act = Act::Record;
      long start, exponent;
      double mantissa;
      NearestStart(r, n, start, exponent, mantissa);
      o.text = PubFactorial(start, exponent, mantissa, n);
      o.message = "Sorry, Not Available for conti. calc..\r\nBut  Factorial Value is :" + o.text;
      return o;
    }
  }
  return Refused(Act::Stop, "Sorry, Not Available.");
}

}  // namespace tessaron::kernels
