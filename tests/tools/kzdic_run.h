// Runs kzdic in a directory of its own and shows what it said.
#ifndef KZ_TESTS_TOOLS_KZDIC_RUN_H
#define KZ_TESTS_TOOLS_KZDIC_RUN_H

#include <filesystem>
#include <string>
#include <vector>

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

// A directory that exists as long as the object; file names below are relative to it.
class Workplace {
 public:
  Workplace();
  ~Workplace();
  Workplace(const Workplace&) = delete;
  Workplace& operator=(const Workplace&) = delete;

  Outcome kzdic(const std::vector<std::string>& arguments, const std::string& input = {}) const;
  void write(const std::string& name, const std::string& bytes) const;
  std::string read(const std::string& name) const;
  bool exists(const std::string& name) const;
  std::string path(const std::string& name) const { return (directory_ / name).string(); }

 private:
  std::filesystem::path directory_;
};

#endif  // KZ_TESTS_TOOLS_KZDIC_RUN_H
