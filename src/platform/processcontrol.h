#pragma once

#include <QUrl>
#include <memory>

// How Brisko ends or restarts itself and hands things to the desktop. Tests
// install a double that notes the calls instead.
//
// In a real run endProgram(), endProcess() and restart() do not return.
// Callers still return right after calling them, so that under a test double
// the command simply finishes.
class ProcessControl {
public:
    virtual ~ProcessControl() = default;

    // Ends the process at once, closing every window without its questions.
    virtual void endProgram() = 0;
    // Ends the process at once, with none of endProgram's bookkeeping.
    virtual void endProcess() = 0;
    // Starts the program's own file again, then ends this process.
    virtual void restart() = 0;
    // Opens a file or web page with the desktop's handler.
    virtual void openExternally(const QUrl &target) = 0;
};

ProcessControl &processControl();

// Replaces the process control in use; gives back the one that was in use.
std::unique_ptr<ProcessControl> installProcessControl(std::unique_ptr<ProcessControl> replacement);

class RealProcessControl final : public ProcessControl {
public:
    void endProgram() override;
    void endProcess() override;
    void restart() override;
    void openExternally(const QUrl &target) override;
};
