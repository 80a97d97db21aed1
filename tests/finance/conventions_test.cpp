#include "tests/finance/loan_fixture.h"
