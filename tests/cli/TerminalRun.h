#pragma once

#include <QByteArray>
#include <QStringList>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace clitest {

/** What a command shows on a terminal of its own, that of both streams.
 *  @param directory    to run in
 *  @param environment  names and values, beside what is inherited */
inline QByteArray shownOnTerminal(const std::string &directory, const QStringList &command,
                                  const std::vector<std::pair<std::string, std::string>> &environment)
{
    std::vector<QByteArray> words;
    words.reserve(static_cast<std::size_t>(command.size()));
    for (const QString &word : command)
        words.push_back(word.toLocal8Bit());
    std::vector<char *> argv;
    argv.reserve(words.size() + 1);
    for (QByteArray &word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);

    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        for (const auto &[name, value] : environment)
            setenv(name.c_str(), value.c_str(), 1);
        if (chdir(directory.c_str()) == 0)
            execv(argv.front(), argv.data());
        _exit(127);
    }
    EXPECT_GT(child, 0);
    QByteArray shown;
    std::array<char, 4096> part{};
    for (ssize_t size = 0; (size = read(terminal, part.data(), part.size())) > 0;)
        shown.append(part.data(), static_cast<int>(size));
    close(terminal);
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_NE(WEXITSTATUS(status), 127);
    return shown;
}

} // namespace clitest
