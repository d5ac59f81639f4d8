// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBox.h"

#include <QtCore/QStringConverter>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <spawn.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// Everything here lives on the stack: whoever shows this box may have run out of memory.

namespace ZyxPlatform {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t mostTextBytes = 4096;
constexpr qsizetype mostTextUnits = (mostTextBytes - 1) / 3; // 3 bytes at most; the longest message has some 500

/*! Zero-terminated UTF-8 in place. A longer text is cut at the end of a character. */
class Utf8Text
{
public:
    explicit Utf8Text(QStringView text)
    {
        QStringEncoder encode(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
        QStringView fitting = text.first(std::min(text.size(), mostTextUnits));
        if (fitting.size() < text.size() && fitting.back().isHighSurrogate()) {
            fitting.chop(1);
        }
        *encode.appendToBuffer(m_bytes.data(), fitting) = '\0';
    }

    char *data()
    {
        return m_bytes.data();
    }

private:
    std::array<char, mostTextBytes> m_bytes;
};

/*! Path of the program \a name, as the shell would find it. */
class ProgramPath
{
public:
    explicit ProgramPath(std::string_view name)
    {
        const char *folders = std::getenv("PATH");
        std::string_view rest = folders == nullptr ? std::string_view("/usr/bin:/bin") : std::string_view(folders);
        while (!rest.empty() && !m_found) {
            const std::size_t end = std::min(rest.find(':'), rest.size());
            tryFolder(rest.substr(0, end), name);
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }

    bool isFound() const
    {
        return m_found;
    }

    char *data()
    {
        return m_path.data();
    }

private:
    void tryFolder(std::string_view folder, std::string_view name)
    {
        if (folder.empty() || folder.size() + name.size() + 2 > m_path.size()) {
            return;
        }
        char *end = std::copy(folder.begin(), folder.end(), m_path.data());
        *end++ = '/';
        *std::copy(name.begin(), name.end(), end) = '\0';
        struct stat file;
        m_found = stat(m_path.data(), &file) == 0 && S_ISREG(file.st_mode) && access(m_path.data(), X_OK) == 0;
    }

    std::array<char, PATH_MAX> m_path;
    bool m_found = false;
};

/*! A window's number in decimal digits. */
class WindowNumber
{
public:
    explicit WindowNumber(quintptr window)
    {
        *std::to_chars(m_digits.data(), m_digits.data() + m_digits.size() - 1, window).ptr = '\0';
    }

    char *data()
    {
        return m_digits.data();
    }

private:
    std::array<char, 24> m_digits;
};

constexpr std::size_t mostArguments = 12;

enum class Outcome {
    NotShown,
    Doubtful, // closed without the button, or the program had no display: it ends the same way
    Shown
};

/*! The words of one command, pointing into texts that outlive it. */
class Command
{
public:
    explicit Command(ProgramPath &program)
    {
        add(program.data());
    }

    void add(char *word)
    {
        m_words.at(m_count++) = word;
    }

    void add(const char *word)
    {
        add(const_cast<char *>(word)); // posix_spawn takes char *const, and writes to none
    }

    /*! Runs the program and waits for its end. */
    Outcome run() const
    {
        pid_t process = 0;
        if (posix_spawn(&process, m_words.front(), nullptr, nullptr, m_words.data(), environ) != 0) {
            return Outcome::NotShown;
        }
        int status = 0;
        while (waitpid(process, &status, 0) == -1) {
            if (errno != EINTR) {
                return Outcome::Doubtful; // somebody else collected it: it has ended all the same
            }
        }
        return outcomeOf(status);
    }

private:
    static Outcome outcomeOf(int status)
    {
        if (!WIFEXITED(status) || WEXITSTATUS(status) > 1) {
            return Outcome::NotShown;
        }
        return WEXITSTATUS(status) == 0 ? Outcome::Shown : Outcome::Doubtful;
    }

    std::array<char *, mostArguments> m_words{};
    std::size_t m_count = 0;
};

struct Message
{
    Utf8Text text;
    Utf8Text title;
    WindowNumber parent;
    bool hasParent;
};

Outcome showWithZenity(Message &message)
{
    ProgramPath program("zenity"sv);
    if (!program.isFound()) {
        return Outcome::NotShown;
    }
    Command command(program);
    command.add("--error");
    command.add("--no-markup");
    command.add("--title");
    command.add(message.title.data());
    command.add("--text");
    command.add(message.text.data());
    if (message.hasParent) {
        command.add("--modal");
        command.add("--attach");
        command.add(message.parent.data());
    }
    return command.run();
}

Outcome showWithKdialog(Message &message)
{
    ProgramPath program("kdialog"sv);
    if (!program.isFound()) {
        return Outcome::NotShown;
    }
    Command command(program);
    command.add("--title");
    command.add(message.title.data());
    if (message.hasParent) {
        command.add("--attach");
        command.add(message.parent.data());
    }
    command.add("--error");
    command.add(message.text.data());
    return command.run();
}

Outcome showWithXmessage(Message &message)
{
    ProgramPath program("xmessage"sv);
    if (!program.isFound()) {
        return Outcome::NotShown;
    }
    Command command(program);
    command.add("-center");
    command.add("-title");
    command.add(message.title.data());
    command.add("-buttons");
    command.add("OK:0");
    command.add("-default");
    command.add("OK");
    command.add(message.text.data());
    return command.run();
}

bool hasWayland()
{
    return std::getenv("WAYLAND_DISPLAY") != nullptr;
}

bool hasDisplay()
{
    return std::getenv("DISPLAY") != nullptr || hasWayland();
}

/*! Tries the programs that desktops bring, until one has shown the message. */
Outcome showWithAnyProgram(Message &message)
{
    if (!hasDisplay()) {
        return Outcome::NotShown;
    }
    for (const auto show : {showWithZenity, showWithKdialog, showWithXmessage}) {
        if (const Outcome outcome = show(message); outcome != Outcome::NotShown) {
            return outcome;
        }
    }
    return Outcome::NotShown;
}

void writeToStandardError(const char *text)
{
    std::size_t left = std::strlen(text);
    while (left > 0) {
        const ssize_t written = write(STDERR_FILENO, text, left);
        if (written == -1 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return;
        }
        text += written;
        left -= std::size_t(written);
    }
}

} // namespace

void showErrorBox(quintptr parent, const QString &text, const QString &title)
{
    const bool hasParent = parent != 0 && !hasWayland(); // there a window's number means nothing to other programs
    Message message{Utf8Text(text), Utf8Text(title), WindowNumber(parent), hasParent};
    if (showWithAnyProgram(message) == Outcome::Shown) {
        return;
    }
    writeToStandardError(message.title.data());
    writeToStandardError(": ");
    writeToStandardError(message.text.data());
    writeToStandardError("\n");
}

} // namespace ZyxPlatform
