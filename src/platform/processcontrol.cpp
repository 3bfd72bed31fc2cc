#include "platform/processcontrol.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QProcess>
#include <cstdio>
#include <cstdlib>

namespace {

std::unique_ptr<ProcessControl> &current() {
    static std::unique_ptr<ProcessControl> instance = std::make_unique<RealProcessControl>();
    return instance;
}

} // namespace

ProcessControl &processControl() {
    return *current();
}

std::unique_ptr<ProcessControl> installProcessControl(std::unique_ptr<ProcessControl> replacement) {
    std::swap(current(), replacement);
    return replacement;
}

void RealProcessControl::endProgram() {
    endProcess();
}

void RealProcessControl::endProcess() {
    // No connection stays open between operations and every setting is synced
    // when written, so there is nothing left to save.
    std::fflush(nullptr);
    std::_Exit(0);
}

void RealProcessControl::restart() {
    QProcess::startDetached(QCoreApplication::applicationFilePath(), {});
    endProgram();
}

void RealProcessControl::openExternally(const QUrl &target) {
    QDesktopServices::openUrl(target);
}
