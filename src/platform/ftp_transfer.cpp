// SPDX-License-Identifier: MIT
#include "platform/ftp_transfer.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <utility>
#ifdef Q_OS_WIN
#include <winsock2.h>
#else
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

using namespace std::chrono_literals;

namespace {

constexpr auto Tick = 20ms;
constexpr auto LeaveTaking = 1s;
constexpr auto Shortly = 2ms;
constexpr long SendBuffer = 256 * 1024;
constexpr qsizetype MostLines = 10'000; // of a reply; more are no reply

void PrepareLibrary() {
    static const CURLcode prepared = curl_global_init(CURL_GLOBAL_DEFAULT);
    static_cast<void>(prepared);
#ifdef SIGPIPE
    // A server that hangs up is no reason to die; without signals libcurl leaves this to its caller.
    static const auto before = std::signal(SIGPIPE, SIG_IGN);
    static_cast<void>(before);
#endif
}

// Every byte escaped, so that none of them means anything in a URL.
QByteArray Escaped(const QByteArray& path) {
    constexpr char Digits[] = "0123456789ABCDEF";
    QByteArray escaped;
    escaped.reserve(3 * path.size());
    for (const char c : path) {
        const auto byte = static_cast<uchar>(c);
        escaped += '%';
        escaped += Digits[byte >> 4];
        escaped += Digits[byte & 15];
    }
    return escaped;
}

struct SListDeleter {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using SList = std::unique_ptr<curl_slist, SListDeleter>;

} // namespace

FtpTransfer::FtpTransfer() {
    PrepareLibrary();
    m_multi.reset(curl_multi_init());
    m_easy.reset(curl_easy_init());
    m_url.reset(curl_url());
    Set(CURLOPT_NOSIGNAL, 1L);
    Set(CURLOPT_QUICK_EXIT, 1L); // a name that is still looked up holds nobody
    Set(CURLOPT_PROTOCOLS_STR, "ftp");
    Set(CURLOPT_PROXY, "");
    Set(CURLOPT_NETRC, long(CURL_NETRC_IGNORED));
    Set(CURLOPT_PATH_AS_IS, 1L);
    Set(CURLOPT_FTP_FILEMETHOD, long(CURLFTPMETHOD_NOCWD));
    Set(CURLOPT_USE_SSL, long(CURLUSESSL_TRY));
    Set(CURLOPT_FTPSSLAUTH, long(CURLFTPAUTH_TLS));
    // Many a server wants each file's connection to go on with the TLS session of the first one, and a ticket
    // of version 1.3 is good for one connection alone.
    Set(CURLOPT_SSLVERSION, long(CURL_SSLVERSION_TLSv1_2) | long(CURL_SSLVERSION_MAX_TLSv1_2));
    Set(CURLOPT_UPLOAD_BUFFERSIZE, SendBuffer);
    Set(CURLOPT_READFUNCTION, &ReadFile);
    Set(CURLOPT_READDATA, this);
    Set(CURLOPT_HEADERFUNCTION, &TakeReply);
    Set(CURLOPT_HEADERDATA, this);
    Set(CURLOPT_NOPROGRESS, 0L);
    Set(CURLOPT_XFERINFOFUNCTION, &Watch);
    Set(CURLOPT_XFERINFODATA, this);
    Set(CURLOPT_SOCKOPTFUNCTION, &PrepareSocket);
    Set(CURLOPT_OPENSOCKETFUNCTION, &OpenSocket);
    Set(CURLOPT_OPENSOCKETDATA, this);
    Set(CURLOPT_CLOSESOCKETFUNCTION, &CloseSocket);
    Set(CURLOPT_CLOSESOCKETDATA, this);
}

FtpTransfer::~FtpTransfer() {
    if (m_connected) Quit();
    if (m_worker.joinable()) {
        Assign(Task::End);
        m_worker.join();
    }
    m_easy.reset(); // before what CloseSocket() needs
    m_multi.reset();
}

bool FtpTransfer::SetServer(const QByteArray& host, quint16 port, const QByteArray& certificates) {
    if (!certificates.isEmpty()) Set(CURLOPT_CAINFO, certificates.constData());
    return curl_url_set(m_url.get(), CURLUPART_SCHEME, "ftp", 0) == CURLUE_OK &&
           curl_url_set(m_url.get(), CURLUPART_HOST, host.constData(), 0) == CURLUE_OK &&
           curl_url_set(m_url.get(), CURLUPART_PORT, QByteArray::number(port).constData(), 0) == CURLUE_OK &&
           SetPath("/");
}

void FtpTransfer::SetLogin(const QByteArray& user, const QByteArray& password) {
    Set(CURLOPT_USERNAME, user.constData());
    Set(CURLOPT_PASSWORD, password.constData());
}

bool FtpTransfer::SetPath(const QByteArray& path) {
    if (curl_url_set(m_url.get(), CURLUPART_PATH, ("/" + Escaped(path)).constData(), 0) != CURLUE_OK)
        return false;
    char* text = nullptr;
    if (curl_url_get(m_url.get(), CURLUPART_URL, &text, 0) != CURLUE_OK) return false;
    Set(CURLOPT_URL, text); // copied
    curl_free(text);
    return true;
}

FtpTransfer::Outcome FtpTransfer::Command(const QByteArray& command, const Patience& patience,
                                          const GoOn& goOn) {
    Begin(patience);
    if (!SetPath("/")) return Outcome::Failed;
    // With the star a refusal leaves the connection as it is.
    const SList commands(curl_slist_append(nullptr, ("*" + command).constData()));
    Set(CURLOPT_UPLOAD, 0L);
    Set(CURLOPT_NOBODY, 1L);
    Set(CURLOPT_QUOTE, commands.get());
    const CURLcode code = RunBeside(goOn);
    Set(CURLOPT_QUOTE, static_cast<curl_slist*>(nullptr));
    return OutcomeOf(code);
}

FtpTransfer::Outcome FtpTransfer::Store(QIODevice& file, qint64 size, const QByteArray& path, bool active,
                                        const Patience& patience, const GoOn& goOn) {
    Begin(patience);
    if (!SetPath(path)) return Outcome::Failed;
    m_file = &file;
    m_all = size;
    Set(CURLOPT_NOBODY, 0L);
    Set(CURLOPT_UPLOAD, 1L);
    Set(CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(size));
    Set(CURLOPT_FTPPORT, active ? "-" : static_cast<const char*>(nullptr));
    const CURLcode code = RunBeside(goOn);
    const bool unmade = m_timedOut && active && !m_fileBegun;
    return unmade ? Outcome::NoDataConnection : OutcomeOf(code);
}

// The transfer never ends by itself: libcurl would say farewell once more, and wait for that without a limit.
void FtpTransfer::Quit() {
    Begin({LeaveTaking, LeaveTaking, LeaveTaking});
    m_quitting = true;
    SList commands(curl_slist_append(nullptr, "*QUIT"));
    curl_slist_append(commands.get(), "*NOOP");
    Set(CURLOPT_UPLOAD, 0L);
    Set(CURLOPT_NOBODY, 1L);
    Set(CURLOPT_QUOTE, commands.get());
    RunBeside({});
}

void FtpTransfer::Begin(const Patience& patience) {
    m_patience = patience;
    m_begin = Clock::now();
    m_moved = m_begin;
    m_reply = 0;
    m_lines.clear();
    m_file = nullptr;
    m_all = m_sent = m_taken = 0;
    m_fileBegun = m_timedOut = m_left = false;
}

bool FtpTransfer::TimeIsUp() const {
    const auto now = Clock::now();
    return now - m_begin > m_patience.all ||
           now - m_moved.load() > (m_fileBegun ? m_patience.silence : m_patience.beforeFile);
}

// Carries the request out, until that IsOver().
CURLcode FtpTransfer::Run() {
    CURLcode code = CURLE_ABORTED_BY_CALLBACK;
    if (curl_multi_add_handle(m_multi.get(), m_easy.get()) != CURLM_OK) return code;
    while (!IsOver()) {
        int running = 0;
        if (curl_multi_perform(m_multi.get(), &running) != CURLM_OK) break;
        int waiting = 0;
        if (const CURLMsg* message = curl_multi_info_read(m_multi.get(), &waiting)) {
            code = message->data.result;
            curl_socket_t socket = CURL_SOCKET_BAD;
            curl_easy_getinfo(m_easy.get(), CURLINFO_ACTIVESOCKET, &socket);
            m_connected = socket != CURL_SOCKET_BAD;
            m_sound = m_connected && code == CURLE_OK;
            break;
        }
        if (m_quitting && m_reply != 0) break;
        curl_multi_poll(m_multi.get(), nullptr, 0, static_cast<int>(Tick.count()), nullptr);
    }
    curl_multi_remove_handle(m_multi.get(), m_easy.get());
    return code;
}

// Small files come one behind the other, and to be woken would take longer than to send one.
template<class Condition> void FtpTransfer::AwaitShortly(Condition condition) {
    const auto end = Clock::now() + Shortly;
    while (!condition() && Clock::now() < end) std::this_thread::yield();
}

void FtpTransfer::Assign(Task task) {
    const std::lock_guard lock(m_taskAccess);
    m_task = task;
    m_taskChanged.notify_all();
}

void FtpTransfer::Work() {
    std::unique_lock lock(m_taskAccess);
    for (;;) {
        lock.unlock();
        AwaitShortly([this] { return m_task != Task::None; });
        lock.lock();
        m_taskChanged.wait(lock, [this] { return m_task != Task::None; });
        if (m_task == Task::End) return;
        lock.unlock();
        const CURLcode code = Run();
        lock.lock();
        m_code = code;
        m_task = Task::None;
        m_taskChanged.notify_all();
    }
}

// In a thread of its own: for the greeting of TLS, and for the server's word on a file, libcurl waits without
// coming back. What breaks the request off breaks the connection off, too: the answer that is missing would
// be taken for that of the next one.
CURLcode FtpTransfer::RunBeside(const GoOn& goOn) {
    m_connected = m_sound = false;
    if (!m_worker.joinable()) m_worker = std::thread([this] { Work(); });
    Assign(Task::Run);
    AwaitShortly([this] { return m_task == Task::None; });
    std::unique_lock lock(m_taskAccess);
    while (!m_taskChanged.wait_for(lock, Tick, [this] { return m_task == Task::None; })) {
        lock.unlock();
        if (!IsOver() && goOn && !goOn(m_sent, m_all)) m_left = true;
        if (TimeIsUp()) m_timedOut = true;
        if (IsOver()) HangUp();
        lock.lock();
    }
    if (IsOver()) m_connected = m_sound = false;
    return m_code;
}

// Wakes whoever waits for the server, which has nothing more to say.
void FtpTransfer::HangUp() {
    constexpr int BothWays = 2; // SD_BOTH, SHUT_RDWR
    const std::lock_guard lock(m_socketsAccess);
    for (const curl_socket_t socket : m_sockets) ::shutdown(socket, BothWays);
}

FtpTransfer::Outcome FtpTransfer::OutcomeOf(CURLcode code) const {
    constexpr std::array<int, 6> noDataConnection{425, 500, 501, 502, 504, 522};
    switch (code) {
    case CURLE_OK:
        return Outcome::Done;
    case CURLE_LOGIN_DENIED:
        return Outcome::LoginRefused;
    case CURLE_FTP_PORT_FAILED:
    case CURLE_FTP_ACCEPT_FAILED:
    case CURLE_FTP_ACCEPT_TIMEOUT:
        return Outcome::NoDataConnection;
    case CURLE_UPLOAD_FAILED:
        return std::find(noDataConnection.begin(), noDataConnection.end(), m_reply) != noDataConnection.end()
                   ? Outcome::NoDataConnection
                   : Outcome::Failed;
    default:
        return Outcome::Failed;
    }
}

size_t FtpTransfer::ReadFile(char* buffer, size_t size, size_t count, void* self) {
    auto* transfer = static_cast<FtpTransfer*>(self);
    transfer->m_moved = Clock::now();
    transfer->m_fileBegun = true;
    const qint64 room = std::min(static_cast<qint64>(size * count), transfer->m_all - transfer->m_sent);
    if (room <= 0) return 0;
    const qint64 bytes = transfer->m_file->read(buffer, room);
    if (bytes <= 0) return CURL_READFUNC_ABORT; // it has become shorter, or cannot be read any more
    transfer->m_sent += bytes;
    return static_cast<size_t>(bytes);
}

size_t FtpTransfer::TakeReply(char* line, size_t size, size_t count, void* self) {
    auto* transfer = static_cast<FtpTransfer*>(self);
    transfer->m_moved = Clock::now();
    const QByteArray text(line, static_cast<qsizetype>(size * count));
    constexpr int CodeLength = 3;
    bool isNumber = false;
    const int code = text.first(std::min<qsizetype>(CodeLength, text.size())).toInt(&isNumber);
    // A "-" behind the code says that more lines follow.
    if (isNumber && text.size() > CodeLength && text[CodeLength] != '-') transfer->m_reply = code;
    if (transfer->m_lines.size() < MostLines) transfer->m_lines.append(text);
    return size * count;
}

// Asked by libcurl where it waits inside, too. A slow line needs long for what has been read at once.
int FtpTransfer::Watch(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t sent) {
    auto* transfer = static_cast<FtpTransfer*>(self);
    if (std::exchange(transfer->m_taken, sent) != sent) transfer->m_moved = Clock::now();
    return transfer->IsOver() ? 1 : 0;
}

curl_socket_t FtpTransfer::OpenSocket(void* self, curlsocktype, curl_sockaddr* address) {
    auto* transfer = static_cast<FtpTransfer*>(self);
    if (transfer->m_quitting)
        return CURL_SOCKET_BAD; // one that has hung up need not be called for a farewell
    const std::lock_guard lock(transfer->m_socketsAccess);
    const curl_socket_t socket = ::socket(address->family, address->socktype, address->protocol);
    if (socket != CURL_SOCKET_BAD) transfer->m_sockets.push_back(socket);
    return socket;
}

// What waits inside of the system is on its way without a sign of life, for minutes on a slow line.
int FtpTransfer::PrepareSocket(void*, curl_socket_t socket, curlsocktype) {
#ifdef TCP_NOTSENT_LOWAT
    constexpr int Waiting = 128 * 1024;
    setsockopt(socket, IPPROTO_TCP, TCP_NOTSENT_LOWAT, &Waiting, sizeof(Waiting));
#else
    static_cast<void>(socket);
#endif
    return CURL_SOCKOPT_OK;
}

int FtpTransfer::CloseSocket(void* self, curl_socket_t socket) {
    auto* transfer = static_cast<FtpTransfer*>(self);
    const std::lock_guard lock(transfer->m_socketsAccess);
    std::erase(transfer->m_sockets, socket);
#ifdef Q_OS_WIN
    return ::closesocket(socket);
#else
    return ::close(socket);
#endif
}
