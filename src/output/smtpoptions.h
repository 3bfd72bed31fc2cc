#pragma once

#include "output/mailer.h"

#include <QString>
#include <chrono>

// How a mail goes over the wire. sendMail uses the defaults.
struct SmtpOptions {
    std::chrono::seconds connectTimeout{20};
    std::chrono::seconds transferTimeout{120};
    // A bundle of certificate authorities to trust instead of the system's.
    QString caBundle;
};

// Error numbers of a mail that cannot go out; a failed transfer gives
// libcurl's own code instead.
namespace MailError {
constexpr int NotSetUp = 1001;
constexpr int NoRecipient = 1002;
} // namespace MailError

void sendMail(const MailMessage &message, const MailSettings &settings, const SmtpOptions &options);
