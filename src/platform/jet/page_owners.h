#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tendo::jet {

/// Faults found so far, up to a limit.
class FaultList {
  public:
    void Add(std::string fault) {
        if (faults_.size() < Most) faults_.push_back(std::move(fault));
    }
    std::size_t Count() const { return faults_.size(); }
    std::vector<std::string> Take() { return std::move(faults_); }

  private:
    static constexpr std::size_t Most = 100;
    std::vector<std::string> faults_;
};

/// Who owns each page of a file. A page in two places is a fault.
class PageOwners {
  public:
    PageOwners(std::uint32_t pageCount, FaultList& faults)
        : owners_(pageCount), names_(1), faults_(faults) {}

    void Own(const std::vector<std::uint32_t>& pages, const std::string& owner) {
        names_.push_back(owner);
        for (const std::uint32_t page : pages) {
            if (page >= owners_.size()) continue;
            if (owners_[page] != 0)
                faults_.Add("page " + std::to_string(page) + " belongs to " +
                            names_[owners_[page]] + " and to " + owner);
            else
                owners_[page] = static_cast<std::uint32_t>(names_.size() - 1);
        }
    }
    bool IsOwned(std::uint32_t page) const { return owners_[page] != 0; }
    const std::string& OwnerOf(std::uint32_t page) const { return names_[owners_[page]]; }

  private:
    std::vector<std::uint32_t> owners_;  // place in `names_`; 0: nobody
    std::vector<std::string> names_;
    FaultList& faults_;
};

}  // namespace tendo::jet
