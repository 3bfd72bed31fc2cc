#pragma once

#include <QString>
#include <memory>
#include <optional>

// The desktop's keychain, for secrets that should not lie in the settings
// file. Tests install a double, since a test machine may have no keychain.
class Keychain {
public:
    virtual ~Keychain() = default;

    // The secret kept under `key`, or nothing when there is none or no
    // keychain can be reached.
    virtual std::optional<QString> read(const QString &key) = 0;
    // False when no keychain took the secret.
    virtual bool write(const QString &key, const QString &secret) = 0;
    virtual void remove(const QString &key) = 0;
};

Keychain &keychain();

// Replaces the keychain in use; gives back the one that was in use.
std::unique_ptr<Keychain> installKeychain(std::unique_ptr<Keychain> replacement);

// The desktop's own keychain through QtKeychain, under the service "Brisko".
class DesktopKeychain final : public Keychain {
public:
    std::optional<QString> read(const QString &key) override;
    bool write(const QString &key, const QString &secret) override;
    void remove(const QString &key) override;
};

// A machine without a keychain: nothing is kept, nothing is found.
class NoKeychain final : public Keychain {
public:
    std::optional<QString> read(const QString &) override { return std::nullopt; }
    bool write(const QString &, const QString &) override { return false; }
    void remove(const QString &) override {}
};
