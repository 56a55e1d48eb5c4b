// SPDX-License-Identifier: MIT
// The maker's addresses, all in this one place. They are placeholders until a deployment sets its own.
#pragma once

#include <QString>

namespace Addresses {

inline const QString Domain = QStringLiteral("example.invalid"); // reserved: no such host exists
inline const QString Home = QStringLiteral("http://www.example.invalid/");
inline const QString Support = QStringLiteral("http://www.example.invalid/support.htm");
inline const QString Webspace = QStringLiteral("http://www.example.invalid/webspace.htm");
inline const QString Domains = QStringLiteral("http://www.example.invalid/domains.htm");
inline const QString Tools = QStringLiteral("http://www.example.invalid/tools.htm");
inline const QString WAP = QStringLiteral("http://www.example.invalid/wap.htm");
inline const QString UpdateCheck = QStringLiteral("http://www.example.invalid/update.htm");
inline const QString UpdateArchive = QStringLiteral("http://download.example.invalid/sorvane.zip");
inline const QString Mail = QStringLiteral("mailto:info@example.invalid");
inline const QString MailBug =
    QStringLiteral("mailto:info@example.invalid?subject=Fehlermeldung%20Sorvane%20HTML%20"
                   "Editor%203.0&body=Fehlerbeschreibung:");

// Whether `address` is still a placeholder, so that asking the network for it is of no use.
inline bool IsPlaceholder(const QString& address) { return address.contains(Domain); }

} // namespace Addresses
