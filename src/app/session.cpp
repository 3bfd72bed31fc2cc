#include "app/session.h"

#include "platform/processcontrol.h"

Session &session() {
    static Session state;
    return state;
}

void resetSession() {
    session() = Session{};
}

void setConnectionString(const QString &path) {
    session().connectionString = path;
}

namespace modMain {

void EndProgram() {
    session().shuttingDown = true;
    processControl().endProgram();
}

} // namespace modMain
