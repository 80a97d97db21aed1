#include "engine_fixture.h"

namespace tessaron::test {

TEST_F(EngineTest, SolveFindsBothSquareRootsOfTwo) {
  function("T x2 - 2");
  fkey("Solve");
  EXPECT_TRUE(near(memory(4), std::sqrt(2.0), 1e-12));
  EXPECT_TRUE(near(memory(5), -std::sqrt(2.0), 1e-12));
  EXPECT_EQ(c("lblFormula").Caption.substr(c("lblFormula").Caption.size() - 8), ": 2 Ans.");
  EXPECT_EQ(calc->CalcStage, 4);
  EXPECT_EQ(c("cmdBack").Caption, "Back");
}

TEST_F(EngineTest, TItselfARootIsReportedFirst) {
  function("T - 1");
  fkey("Solve");
  EXPECT_EQ(memory(4), 1);
  EXPECT_EQ(slotAnswers(), (std::vector<double>{1}));
}

TEST_F(EngineTest, ATouchingRootWithoutASignChange) {
  function("T x2");
  fkey("Solve");
  // Memory 4 takes the answer 0; the slot's rows and the note tell it.
  EXPECT_TRUE(holds(slotAnswers(), 0));
  const std::string& f = c("lblFormula").Caption;
  EXPECT_EQ(f.substr(f.size() - 8), ": 1 Ans.");
}

TEST_F(EngineTest, APoleWithAKnownDomainGivesNoAnswer) {
  function("1 / ( T - 3 )");
  fkey("Solve");
  EXPECT_TRUE(memoryAnswers().empty()) << memory(4);
  EXPECT_EQ(calc->DomainTab[0], 2);
  EXPECT_EQ(calc->DomainTab[310], 3);
  const std::string& f = c("lblFormula").Caption;
  EXPECT_EQ(f.substr(f.size() - 20), "     find no answer ");
}

// Without a domain the bisection runs into the pole and the residual test
// turns it away.
TEST_F(EngineTest, APoleWithoutADomainIsTurnedAwayByItsResidual) {
  function("1 / ( T - 3 )");
  calc->EqnIdx = 1;
  calc->CalcStage = 5;
  calc->DomainTab.fill(0);
  calc->pubSolveUpDown();
  EXPECT_EQ(calc->AnsCount, 0);
  EXPECT_TRUE(memoryAnswers().empty()) << memory(4);
}

TEST_F(EngineTest, ThreeAnswersEndAPass) {
  // Roots at 2, 3, 4 and 5 above T = 1.
  function("( T - 2 ) X ( T - 3 ) X ( T - 4 ) X ( T - 5 )");
  fkey("Solve");
  const auto got = memoryAnswers();
  EXPECT_TRUE(holds(got, 2) && holds(got, 3) && holds(got, 4));
  EXPECT_FALSE(holds(got, 5));
}

TEST_F(EngineTest, AnAnswerBeyondTenToTheSeventeen) {
  function("1 / T");
  calc->EqnIdx = 1;
  calc->AnsT = 5e17;
  calc->AnsF = 1e-18;
  calc->AnswerCode = 14.1f;
  calc->CalcStage = 5;
  calc->PubSolveFin();
  EXPECT_EQ(calc->AnsT, 1e100);
  calc->PubAnswerWrite();
  calc->pubAnswerCount();
  EXPECT_EQ(memory(4), 1e100);
  const std::string& f = c("lblFormula").Caption;
  EXPECT_EQ(f.substr(f.size() - 13), " +-Infinity ?");
}

TEST_F(EngineTest, AConstantEndsWithCode999) {
  function("T X 0 + 5");
  calc->EqnIdx = 1;
  calc->CalcStage = 5;
  calc->TPrev = 1;
  calc->FPrev = 5;
  calc->StepBase = 0.01;
  calc->TNext = 1.01;
  calc->TNow = Value(1.01);
  calc->AnswerCode = -85.9f;
  calc->DomainTab.fill(0);
  calc->pubDoWhile();
  EXPECT_EQ(calc->AnswerCode, 999);
  EXPECT_EQ(calc->Iter, 334);
  EXPECT_EQ(calc->PlateauTries, 3);
}

TEST_F(EngineTest, AnswersGoToTheFirstEmptyMemories) {
  for (int n = 4; n <= 6; ++n) calc->vMemory[n] = Value(n * 100);
  function("T x2 - 2");
  fkey("Solve");
  EXPECT_TRUE(near(memory(7), std::sqrt(2.0), 1e-12));
  EXPECT_TRUE(near(memory(8), -std::sqrt(2.0), 1e-12));
  EXPECT_EQ(memory(6), 600);
}

TEST_F(EngineTest, AFullBankWritesToMemory33) {
  for (int n = 1; n <= 33; ++n) calc->vMemory[n] = Value(1000 + n);
  function("T x2 - 2");
  fkey("Solve");
  EXPECT_TRUE(near(memory(33), -std::sqrt(2.0), 1e-12));
  EXPECT_EQ(memory(32), 1032);
}

TEST_F(EngineTest, TwelveAnswersKeepElevenByResidual) {
  function("T");
  calc->EqnIdx = 1;
  for (int i = 1; i <= 12; ++i) {
    calc->AnsT = i;
    calc->AnsF = i * 1e-15;
    calc->AnswerCode = 100;
    calc->PubAnswerWrite();
  }
  const auto kept = slotAnswers();
  ASSERT_EQ(kept.size(), 11u);
  EXPECT_EQ(kept.front(), 1);
  EXPECT_EQ(kept.back(), 11);
}

TEST_F(EngineTest, ADuplicateTo14DigitsIsNotFiledAgain) {
  function("T");
  calc->EqnIdx = 1;
  for (double t : {2.0, 2.0 + 1e-15, 3.0}) {
    calc->AnsT = t;
    calc->AnsF = 0;
    calc->AnswerCode = 100;
    calc->PubAnswerWrite();
  }
  EXPECT_EQ(slotAnswers(), (std::vector<double>{3, 2}));
}

TEST_F(EngineTest, NoAnswerSaysSo) {
  function("T x2 + 1");
  fkey("Solve");
  EXPECT_TRUE(memoryAnswers().empty());
  const std::string& f = c("lblFormula").Caption;
  EXPECT_EQ(f.substr(f.size() - 20), "     find no answer ");
  EXPECT_EQ(display(), "2");
}

TEST_F(EngineTest, SolveOnTheDemoSlotIsNotNecessary) {
  function("T");
  c("ScrForm").setValue(Value(33));
  calc->EqnIdx = 33;
  calc->cmdTsolve();
  EXPECT_EQ(host.boxes.back().text, "  Not Necessary at Demo ");
}

}  // namespace tessaron::test
