// Runs the program under test as a shell would.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace plenovia {

struct Finished {
  int status = -1;  // the exit status; 128 + the signal when one ended the program
  std::string out;
  std::string err;
};

// A running `sirds`. Wait() must be called once.
class Process {
 public:
  explicit Process(const std::vector<std::string>& arguments);
  void Signal(int number) const;
  Finished Wait();

 private:
  pid_t pid_ = -1;
  int out_ = -1;
  int err_ = -1;
};

Finished Sirds(const std::vector<std::string>& arguments);

}  // namespace plenovia
