#pragma once
// What must hold of a form after every event, whatever the user did. Each
// form's checks stand in one row of the table in checks.cpp; a form without a
// row is fuzzed all the same, with the checks every event gets.
#include <string>

namespace tessaron {
class Form;
}

namespace tessaron::fuzz {

// "" when the form is sound, else what is wrong with it.
std::string checkForm(const Form& form);

}  // namespace tessaron::fuzz
