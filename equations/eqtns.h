#pragma once
// The equation form: quadratic (with its first-degree fallback), cubic and
// linear systems of two and three unknowns, solved in closed form from typed
// coefficients, with a graph whose origin and scales are tuned to the
// solution, and a printed page. All arithmetic is Real inside Values.
#include <array>
#include <string>

#include "surface/form.h"

namespace tessaron {

class Canvas;
class PrinterDevice;

// The closed-form helpers; each returns 0 for a result under 1e-13 in
// magnitude, which is what the later tests for zero lean on.
Value Three3(const Value& a, const Value& b, const Value& c, const Value& d, const Value& x);
Value Three2(const Value& a, const Value& b, const Value& c, const Value& x);
Value Three1(const Value& x, const Value& slope, const Value& y);
Value Cramer(const Value& a, const Value& b, const Value& c, const Value& d, const Value& e,
             const Value& f, const Value& g, const Value& h, const Value& i);

class frmEqtns : public Form {
 public:
  explicit frmEqtns(Application& app);
  void Load() override;

  void PubClear();
  void PubCalc();
  void PubSlope();
  void PubGraph();
  void pubZoom();
  void pubShowYes();
  void pubShowNo();
  void PubPrint();

  // Coef(0..19); an index outside is a bounds failure.
  Value& Coef(int index);
  const Value& Coef(int index) const;

  Value EqnType, CurCoef, SavedCoef, AnsCount;
  Value X1, X2, X3, Det, Disc, RootD, MidX, MidY, SideY;
  Value TurnX1, TurnX2, TurnY1, TurnY2, StepCount;
  Value MaskAns, MaskBig, MaskPt;
  Value OriginX, OriginY, ScaleX, ScaleY, ZoomBase;
  Value MarkA, MarkB, MarkC, MarkMid, Span;

 private:
  static std::vector<Design> designTable();
  void routes();

  // Entry.
  void optEqnClick(int Index);
  void ApplyLayout();
  void txtBBBGotFocus(int Index);
  void txtBBBLostFocus(int Index);
  void txtBBBKeyPress(int Index, int KeyAscii);
  void FormKeyDown(int KeyCode);
  void RefuseBox(Control& box, const char* words);
  void ClearAnswers();
  bool BoxShown(int index) const;

  // Solving.
  void cmdCalcClick();
  void CalcQuadratic();
  void CalcCubic();
  void CubicTurns();
  void CubicPolish(const Value& start, const Value& y);
  bool GraphAllowed();
  Value F3(const Value& x) const;

  // Graph.
  void cmdGraphClick();
  void cmdReturnClick();
  void cmdZoomClick(int Index);
  void GraphParabola();
  void GraphLine();
  void GraphCubic();
  void GraphSystem();
  // Each draws on the picture (dx 0) or on paper, moved right by dx.
  void DrawParabola(Canvas& c, double dx);
  void DrawCubic(Canvas& c, double dx);
  void DrawSystem(Canvas& c, double dx);
  void DrawRow(Canvas& c, const Value& a, const Value& b, const Value& k, long colour, double dx);
  void MarkerY(const Value& px, const std::string& caption);
  Value Held(const Value& y) const;
  bool Inside(const Value& y) const;
  Value Mark(const Value& x) const;
  Value MidMark() const;
  std::string PtText(const Value& v) const;

  // Printout.
  void cmdPrintClick();
  void PrintAxes(PrinterDevice& p);
  void PrintEquation(PrinterDevice& p);
  void PrintAnswers(PrinterDevice& p);
  std::string Term(int box, bool first, const char* withFigure, const char* one,
                   const char* minusOne) const;
  std::string RowText(int row) const;

  std::array<Value, 20> coef_;
  double sheetTop_ = 0;  // where the picture's top stands: 0, or lower on paper
};

}  // namespace tessaron
