#include "platform/registry.h"

#include "platform/settingsstore.h"
#include "platform/trim.h"

namespace Utility {

QString RegGetString(const QString &valueName) {
    const QVariant value = SettingsStore::read(valueName);
    if (value.typeId() != QMetaType::QString)
        return {};
    return Trim(value.toString());
}

void RegSetString(const QString &valueName, const QString &value) {
    SettingsStore::write(valueName, value);
}

} // namespace Utility
