#pragma once
namespace tessaron {
class Application;
// Registers every form of the suite with the application.
void registerSuite(Application& app);
}  // namespace tessaron
