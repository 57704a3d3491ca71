#include "cli/tests/process.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

extern char** environ;

namespace plenovia {

Process::Process(const std::vector<std::string>& arguments) {
  std::array<int, 2> out{};
  std::array<int, 2> err{};
  if (pipe2(out.data(), O_CLOEXEC) != 0 || pipe2(err.data(), O_CLOEXEC) != 0) {
    throw std::runtime_error("no pipe");
  }
  std::vector<std::string> words{SIRDS_PROGRAM};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions{};
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, err[1], STDERR_FILENO);
  const int failed = posix_spawn(&pid_, SIRDS_PROGRAM, &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(out[1]);
  close(err[1]);
  if (failed != 0) throw std::runtime_error("cannot start " SIRDS_PROGRAM);
  out_ = out[0];
  err_ = err[0];
}

void Process::Signal(int number) const {
  kill(pid_, number);
}

Finished Process::Wait() {
  Finished finished;
  std::array<pollfd, 2> pipes{pollfd{out_, POLLIN, 0}, pollfd{err_, POLLIN, 0}};
  const std::array<std::string*, 2> texts{&finished.out, &finished.err};
  while (pipes[0].fd >= 0 || pipes[1].fd >= 0) {
    poll(pipes.data(), pipes.size(), -1);
    for (std::size_t i = 0; i < pipes.size(); ++i) {
      if (pipes[i].fd < 0 || pipes[i].revents == 0) continue;
      std::array<char, 4096> bytes{};
      const ssize_t got = read(pipes[i].fd, bytes.data(), bytes.size());
      if (got > 0) {
        texts[i]->append(bytes.data(), static_cast<std::size_t>(got));
      } else {
        close(pipes[i].fd);
        pipes[i].fd = -1;
      }
    }
  }
  int status = 0;
  waitpid(pid_, &status, 0);
  finished.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return finished;
}

Finished Sirds(const std::vector<std::string>& arguments) {
  return Process(arguments).Wait();
}

}  // namespace plenovia
