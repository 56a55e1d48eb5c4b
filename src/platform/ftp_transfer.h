// SPDX-License-Identifier: MIT
// Requests to one FTP server, one behind the other on one control connection. The one place that knows
// libcurl.
#pragma once

#include <QByteArrayList>
#include <QIODevice>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <curl/curl.h>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

class FtpTransfer {
public:
    // Asked some fifty times a second while a request waits; false ends it. See FtpConnection::GoOn.
    using GoOn = std::function<bool(qint64 sent, qint64 all)>;
    enum class Outcome {
        Done,
        LoginRefused,
        NoDataConnection, // the server does not make it, or not in time
        Failed            // or left
    };
    // How long a request may take, and how long the server may be silent before and behind a file's first
    // byte.
    struct Patience {
        std::chrono::milliseconds all;
        std::chrono::milliseconds beforeFile;
        std::chrono::milliseconds silence;
    };

    FtpTransfer();
    ~FtpTransfer(); // takes leave of the server, for which that has a second
    FtpTransfer(const FtpTransfer&) = delete;
    FtpTransfer& operator=(const FtpTransfer&) = delete;

    // `certificates` is a PEM file of trusted ones, empty for the system's. False where `host` can be no
    // host's name. Nothing here or below is looked through for control characters.
    bool SetServer(const QByteArray& host, quint16 port, const QByteArray& certificates);
    void SetLogin(const QByteArray& user, const QByteArray& password);

    // Sends `command`, behind a login where there is no connection yet. Done says that the server has
    // answered; what, Reply() tells.
    Outcome Command(const QByteArray& command, const Patience& patience, const GoOn& goOn);
    // Sends `size` bytes of `file` as the full path `path`. In active mode the server calls back, else we
    // call it a second time. Done says that the server has confirmed the file.
    Outcome Store(QIODevice& file, qint64 size, const QByteArray& path, bool active, const Patience& patience,
                  const GoOn& goOn);

    // Whether the server has been heard well last; else a login has to come first, on the connection if it
    // lives.
    bool IsConnected() const { return m_sound; }
    int Reply() const { return m_reply; } // code of the last reply; 0: none
    const QByteArrayList& ReplyLines() const { return m_lines; }

private:
    using Clock = std::chrono::steady_clock;
    template<class Value> void Set(CURLoption option, Value value) {
        curl_easy_setopt(m_easy.get(), option, value);
    }
    bool SetPath(const QByteArray& path);
    void Quit();
    void Begin(const Patience& patience);
    bool TimeIsUp() const;
    bool IsOver() const { return m_left || m_timedOut; }
    CURLcode Run();
    enum class Task { None, Run, End };
    void Assign(Task task);
    template<class Condition> void AwaitShortly(Condition condition);
    void Work();
    CURLcode RunBeside(const GoOn& goOn);
    void HangUp();
    Outcome OutcomeOf(CURLcode code) const;

    static size_t ReadFile(char* buffer, size_t size, size_t count, void* self);
    static size_t TakeReply(char* line, size_t size, size_t count, void* self);
    static int Watch(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t sent);
    static curl_socket_t OpenSocket(void* self, curlsocktype, curl_sockaddr* address);
    static int PrepareSocket(void* self, curl_socket_t socket, curlsocktype);
    static int CloseSocket(void* self, curl_socket_t socket);

    template<auto Free> struct Deleter {
        template<class Handle> void operator()(Handle* handle) const { Free(handle); }
    };
    std::unique_ptr<CURLM, Deleter<curl_multi_cleanup>> m_multi;
    std::unique_ptr<CURL, Deleter<curl_easy_cleanup>> m_easy;
    std::unique_ptr<CURLU, Deleter<curl_url_cleanup>> m_url;

    bool m_connected = false;
    bool m_sound = false;
    int m_reply = 0;
    QByteArrayList m_lines;
    Patience m_patience{};
    Clock::time_point m_begin;
    std::atomic<Clock::time_point> m_moved; // when the server gave or took something last
    QIODevice* m_file = nullptr;
    qint64 m_all = 0;
    curl_off_t m_taken = 0; // by the network, of m_sent
    std::atomic<qint64> m_sent = 0;
    std::atomic<bool> m_fileBegun = false;
    std::atomic<bool> m_timedOut = false;
    std::atomic<bool> m_left = false;
    bool m_quitting = false;

    // The thread that runs the requests, and what it is told and tells.
    std::mutex m_taskAccess;
    std::condition_variable m_taskChanged;
    std::atomic<Task> m_task = Task::None;
    CURLcode m_code = CURLE_OK;
    std::thread m_worker;

    std::mutex m_socketsAccess;
    std::vector<curl_socket_t> m_sockets; // those that are open, but for calls of the server's
};
