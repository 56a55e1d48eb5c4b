// SPDX-License-Identifier: MIT
#include "platform/ftp_connection.h"

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/ftp_transfer.h"
#include "platform/literals.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QUrl>
#include <algorithm>
#include <optional>

using namespace std::chrono_literals;

namespace {

using Outcome = FtpTransfer::Outcome;

// A firewall in front of us swallows the server's calls; it shall not cost a minute.
constexpr std::chrono::milliseconds ActivePatience = 10s;
constexpr std::chrono::milliseconds Unlimited = 24h * 365;
constexpr quint16 UsualPort = 21;

// Such a character could end the command it stands in, and begin another one.
bool HasControlCharacter(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c < u' ' || c == u'\x7f'; });
}

struct Address {
    QByteArray host;
    quint16 port = UsualPort;
};

// What people type: "ftp.verein.example", with blanks around it, "ftp://" in front, a port or a path behind.
std::optional<Address> AddressOf(const QString& typed) {
    const auto scheme = u"ftp://"_s;
    QString server = typed.trimmed();
    if (server.startsWith(scheme, Qt::CaseInsensitive)) server.remove(0, scheme.size());
    server = server.section(u'/', 0, 0).trimmed();
    Address address;
    const qsizetype colon = server.lastIndexOf(u':');
    const bool bare = server.count(u':') > 1 && !server.startsWith(u'['); // IPv6
    if (colon >= 0 && !bare && !server.endsWith(u']')) {
        bool isPort = false;
        address.port = server.sliced(colon + 1).toUShort(&isPort);
        if (!isPort || address.port == 0) return std::nullopt;
        server.truncate(colon);
    }
    if (bare) server = u'[' + server + u']';
    address.host = server.startsWith(u'[') ? server.toLatin1() : QUrl::toAce(server);
    if (address.host.isEmpty()) return std::nullopt;
    return address;
}

// Nothing where UTF-8 has no form for it, as for half a character.
std::optional<QByteArray> Utf8(const QString& text) {
    QByteArray bytes = text.toUtf8();
    return QString::fromUtf8(bytes) == text ? std::optional(std::move(bytes)) : std::nullopt;
}

std::optional<QByteArray> Windows1252(const QString& text) {
    return CodePage::FitsWindows1252(text) ? std::optional(CodePage::ToWindows1252(text)) : std::nullopt;
}

// Whether the server has agreed to TLS, among the lines of its login.
bool IsEncrypted(const QByteArrayList& lines) {
    return std::any_of(lines.begin(), lines.end(), [](const QByteArray& line) {
        return line.startsWith("234") || line.startsWith("334");
    });
}

// Whether the list of features in `lines` holds UTF-8.
bool OffersUtf8(const QByteArrayList& lines) {
    const auto begin = std::find_if(lines.rbegin(), lines.rend(), [](const QByteArray& line) {
                           return line.startsWith("211-");
                       }).base();
    return std::any_of(begin, lines.end(),
                       [](const QByteArray& line) { return line.trimmed().toUpper() == "UTF8"; });
}

} // namespace

class FtpConnection::Session {
public:
    explicit Session(Limits limits) : m_limits(std::move(limits)) {}

    bool Open(const QString& server, const QString& user, const QString& password, const GoOn& goOn);
    bool ChangeDirectory(const QString& path, const GoOn& goOn);
    bool MakeDirectory(const QString& path, const GoOn& goOn) { return Command("MKD ", path, goOn); }
    bool Put(const QString& local, const QString& remote, const GoOn& goOn);

private:
    Outcome LogIn(const GoOn& goOn);
    bool IsReady(const GoOn& goOn);
    std::optional<QByteArray> Encoded(const QString& path) const;
    bool Command(const QByteArray& command, const QString& path, const GoOn& goOn);
    Outcome Store(QFile& file, const QString& remote, const GoOn& goOn);

    const Limits m_limits;
    FtpTransfer m_transfer;
    bool m_open = false; // not, once the server cannot be reached any more
    bool m_utf8 = false;
    bool m_passive = false;
    bool m_activeWorks = false;
    QSet<QString> m_entered; // directories that the server knows for certain
};

bool FtpConnection::Session::Open(const QString& server, const QString& user, const QString& password,
                                  const GoOn& goOn) {
    m_open = false;
    const auto address = AddressOf(server);
    if (!address || HasControlCharacter(server.trimmed()) || HasControlCharacter(user) ||
        HasControlCharacter(password))
        return false;
    const QByteArray certificates = QFile::encodeName(Files::ToSystem(m_limits.certificates));
    if (!m_transfer.SetServer(address->host, address->port, certificates)) return false;
    const QString name = user.isEmpty() ? u"anonymous"_s : user;
    const QString word = user.isEmpty() && password.isEmpty() ? u"anonymous@"_s : password;
    // No server says which of the two it wants before it has taken one.
    auto outcome = Outcome::LoginRefused;
    const auto logInAs = [&](const std::optional<QByteArray>& n, const std::optional<QByteArray>& w) {
        if (!n || !w) return;
        m_transfer.SetLogin(*n, *w);
        outcome = LogIn(goOn);
    };
    logInAs(Utf8(name), Utf8(word));
    const bool ascii = Utf8(name) == Windows1252(name) && Utf8(word) == Windows1252(word);
    if (outcome == Outcome::LoginRefused && !ascii) logInAs(Windows1252(name), Windows1252(word));
    m_open = outcome == Outcome::Done;
    return m_open;
}

Outcome FtpConnection::Session::LogIn(const GoOn& goOn) {
    m_entered.clear();
    const FtpTransfer::Patience patience{m_limits.connect, m_limits.connect, m_limits.connect};
    const Outcome outcome = m_transfer.Command("FEAT", patience, goOn);
    if (outcome != Outcome::Done) return outcome;
    m_utf8 = OffersUtf8(m_transfer.ReplyLines());
    // libcurl before 8.0 sends the files of active mode in clear where the session is encrypted.
    if (IsEncrypted(m_transfer.ReplyLines())) m_passive = true;
    // Some offer it and want to be told; what others answer does not matter.
    return m_utf8 ? m_transfer.Command("OPTS UTF8 ON", patience, goOn) : outcome;
}

// Logs in anew behind a connection that broke. Where that fails, nothing is tried any more: a thousand files
// would each wait for it.
bool FtpConnection::Session::IsReady(const GoOn& goOn) {
    if (!m_open || m_transfer.IsConnected()) return m_open;
    m_open = (!goOn || goOn(0, 0)) && LogIn(goOn) == Outcome::Done;
    return m_open;
}

std::optional<QByteArray> FtpConnection::Session::Encoded(const QString& path) const {
    if (path.isEmpty() || HasControlCharacter(path)) return std::nullopt;
    return m_utf8 ? Utf8(path) : Windows1252(path);
}

bool FtpConnection::Session::Command(const QByteArray& command, const QString& path, const GoOn& goOn) {
    if (!IsReady(goOn)) return false;
    const auto encoded = Encoded(path);
    if (!encoded) return false;
    const FtpTransfer::Patience patience{Unlimited, m_limits.silence, m_limits.silence};
    return m_transfer.Command(command + *encoded, patience, goOn) == Outcome::Done &&
           m_transfer.Reply() / 100 == 2;
}

// Every other request bears its full path, so a directory is asked for once; four times a file would double
// the time that small ones take.
bool FtpConnection::Session::ChangeDirectory(const QString& path, const GoOn& goOn) {
    const QString name = path.endsWith(u'/') ? path.chopped(1) : path;
    if (m_transfer.IsConnected() && m_entered.contains(name)) return true;
    if (!Command("CWD ", path, goOn)) return false;
    m_entered.insert(name);
    return true;
}

bool FtpConnection::Session::Put(const QString& local, const QString& remote, const GoOn& goOn) {
    QFile file(Files::ToSystem(local));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) return false;
    Outcome outcome = Store(file, remote, goOn);
    if (outcome == Outcome::NoDataConnection && !m_passive) {
        m_passive = true;
        outcome = file.seek(0) ? Store(file, remote, goOn) : Outcome::Failed;
    }
    if (outcome != Outcome::Done) m_entered.clear(); // its directory may have gone
    return outcome == Outcome::Done;
}

Outcome FtpConnection::Session::Store(QFile& file, const QString& remote, const GoOn& goOn) {
    if (!IsReady(goOn)) return Outcome::Failed;
    const auto path = Encoded(remote);
    if (!path) return Outcome::Failed;
    const bool unproven = !m_passive && !m_activeWorks;
    const auto beforeFile = unproven ? std::min(m_limits.silence, ActivePatience) : m_limits.silence;
    const Outcome outcome = m_transfer.Store(file, file.size(), *path, !m_passive,
                                             {Unlimited, beforeFile, m_limits.silence}, goOn);
    if (outcome == Outcome::Done && !m_passive) m_activeWorks = true;
    return outcome;
}

FtpConnection::FtpConnection() : FtpConnection(Limits()) {}

FtpConnection::FtpConnection(Limits limits) : m_session(std::make_unique<Session>(std::move(limits))) {}

FtpConnection::~FtpConnection() = default;

bool FtpConnection::Open(const QString& server, const QString& user, const QString& password,
                         const GoOn& goOn) {
    return m_session->Open(server, user, password, goOn);
}

bool FtpConnection::ChangeDirectory(const QString& path, const GoOn& goOn) {
    return m_session->ChangeDirectory(path, goOn);
}

bool FtpConnection::MakeDirectory(const QString& path, const GoOn& goOn) {
    return m_session->MakeDirectory(path, goOn);
}

bool FtpConnection::Put(const QString& local, const QString& remote, const GoOn& goOn) {
    return m_session->Put(local, remote, goOn);
}
