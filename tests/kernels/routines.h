#pragma once
// The 24 routines of the family, each reached as its key would reach it.
#include <string>

#include "calc/kernels/trig.h"

namespace tessaron::kernels::testing {

struct Routine {
  const char* name;
  TrigKey key;
  bool arc, hyp;
  Outcome operator()(double x, bool degree) const { return Trig(key, arc, hyp, Value(x), degree); }
};

inline const Routine* FindRoutine(const std::string& name) {
  static const Routine kAll[] = {
      {"ZSIN", TrigKey::Sin, false, false}, {"ZCOS", TrigKey::Cos, false, false},
      {"ZTAN", TrigKey::Tan, false, false}, {"ZSEC", TrigKey::Sec, false, false},
      {"ZCSC", TrigKey::Csc, false, false}, {"ZCOT", TrigKey::Cot, false, false},
      {"ZAsin", TrigKey::Sin, true, false}, {"ZAcos", TrigKey::Cos, true, false},
      {"ZAtan", TrigKey::Tan, true, false}, {"ZAsec", TrigKey::Sec, true, false},
      {"ZAcsc", TrigKey::Csc, true, false}, {"ZAcot", TrigKey::Cot, true, false},
      {"ZsinH", TrigKey::Sin, false, true}, {"ZcosH", TrigKey::Cos, false, true},
      {"ZtanH", TrigKey::Tan, false, true}, {"ZsecH", TrigKey::Sec, false, true},
      {"ZcscH", TrigKey::Csc, false, true}, {"ZcotH", TrigKey::Cot, false, true},
      {"zAsinH", TrigKey::Sin, true, true}, {"zAcosH", TrigKey::Cos, true, true},
      {"zAtanH", TrigKey::Tan, true, true}, {"zAsecH", TrigKey::Sec, true, true},
      {"zAcscH", TrigKey::Csc, true, true}, {"zAcotH", TrigKey::Cot, true, true},
  };
  for (const auto& r : kAll)
    if (name == r.name) return &r;
  return nullptr;
}

// Both angle modes, for the routines that take no unit.
inline constexpr bool kModes[] = {true, false};

}  // namespace tessaron::kernels::testing
