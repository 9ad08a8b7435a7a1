#pragma once

#include <string>

namespace tendo::cli {

/// A folder for what a run needs beside the user's files; it goes with the object. Throws Failure
/// when it can't be made.
class ScratchFolder {
  public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// The full name of a file in it.
    std::string File(const std::string& name) const;

  private:
    std::string path_;
};

}  // namespace tendo::cli
