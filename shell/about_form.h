#pragma once
// The about box: a picture, three lines of credit and notice, and OK.
#include "surface/form.h"

namespace tessaron {

class frmAbout : public Form {
 public:
  explicit frmAbout(Application& app);
  void Load() override;
};

}  // namespace tessaron
