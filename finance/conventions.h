#pragma once
// What the rate-term-amount calculators of the suite have in common: a rate
// box with its bar, a term held by two bars, two amount boxes of which the one
// marked "Base" is the input and the other the result, and a recalculation at
// every change. Each calculator is a FinanceForm with its own table of what
// differs; its own arithmetic lives in PubCalc.
#include <string>
#include <utility>
#include <vector>

#include "surface/form.h"

namespace tessaron {

// The words and the title of the finance forms' refusals.
inline constexpr const char* kFinanceTitle = "Tessaron";
inline constexpr const char* kMustBeNumeric = "Must be Numeric Value";
inline constexpr const char* kRateLimit = " 0  -  150 %  here !  ";
inline constexpr const char* kNumbersOnly = " Please Enter Numbers Only ! ";
inline constexpr const char* kPositiveOnly = " Please Enter Positive Number ! ";
inline constexpr const char* kAmountMask = "###,###,###,###,##0.##";
inline constexpr long kEditColour = 0xFF0000;  // blue text of a box under edit

// What one calculator does differently from the others.
struct FinanceTable {
  // The result box beside txtAmount, and the variable behind it is Payment.
  std::string secondBox = "txtPay";
  // A click on the label gives the box the focus.
  std::vector<std::pair<std::string, std::string>> labelFocus;
  // Option buttons whose click recalculates.
  std::vector<std::string> calcOptions;
  // A bar below 10 (0.05 %) stands for a rate of 0.
  bool zeroBelowTen = true;
  // Zero refused as a rate, with its own words.
  bool refusesZero = false;
  std::string rateLimitWords = kRateLimit;
  // Below this rate, Enter in an amount box sends the user to the rate.
  double enterRateFloor = 0;
  // The top of scrYear, where a term with rest months counts one year less.
  int yearMax = 50;
  // Entering an amount box clears both amounts first.
  bool focusClears = true;
  // Enter in txtRate walks to scrYear; otherwise it takes the rate and goes
  // to cmdCalculate.
  bool rateEnterToTerm = true;
  // Enter in the second box calculates before leaving it.
  bool enterCalculatesSecond = false;
  // The label that shows Years.
  std::string yearsLabel = "lblYears";

  // What entering txtRate empties beyond the box: these labels, and with
  // rateFocusEmptiesResult the result box of the base side too, so that no
  // figure of the old rate stays on view while a new one is typed.
  std::vector<std::string> rateFocusEmpties;
  bool rateFocusEmptiesResult = false;
  // The caption PubClear gives both side labels, and whether it also drops
  // the rest months of the term.
  std::string clearBaseCaption = "Base";
  bool clearDropsRestMonths = false;
};

class FinanceForm : public Form {
 public:
  FinanceForm(Application& app, std::string name, FormDesign design, std::vector<Design> controls,
              FinanceTable table);

  virtual void PubCalc() = 0;
  virtual void PubClear();
  virtual void PubYears();
  virtual void PubMonths();
  void PubRate();

  Value AnnualRate, MonthlyRate, MonthlyFactor, ScrollRate;
  Value Years, RestMonths, Months;
  Value Amount, Payment, TotalPaid;
  Value Mask;
  int InRateUpdate = 0;
  bool InMonthScroll = false;

 protected:
  // What txtRate's GotFocus clears beyond the box itself.
  virtual void RateFocusClears();
  virtual void CalculateClick() { PubCalc(); }
  // Opens the form below the menu.
  void PlaceBelowMenu();
  // The guard of every PubCalc: a rate outside 0 to 150 % is taken again.
  void RateGuard();
  bool RateOutside() const;
  // The MsgBox of a refusal, then the box emptied and focused.
  void Refuse(Control& box, const std::string& words);
  // The validator of an amount box on leaving: false when it refused the text.
  bool TakeAmount(Control& box, Value& target, std::string_view mask, bool refuseNegative = true);

  const FinanceTable& table() const { return table_; }

 private:
  void wire();
  void amountBox(const std::string& box, Value FinanceForm::*target, const std::string& ownLabel,
                 const std::string& otherLabel);
  FinanceTable table_;
};

}  // namespace tessaron
