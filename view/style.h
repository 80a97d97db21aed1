#pragma once
// The suite's look, the same in the application, the driver and the tests.
class QApplication;

namespace tessaron::view {

void setupLook(QApplication& app);

}  // namespace tessaron::view
