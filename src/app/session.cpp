#include "app/session.h"

#include "admin/systemuser.h"

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
