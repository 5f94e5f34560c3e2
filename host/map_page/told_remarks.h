#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "map_page/quiet.h"

namespace map_page {

/// Warns of each thing once.
class ToldRemarks {
public:
    /// @param quiet prints the warnings; null: nothing is printed
    explicit ToldRemarks(const Quiet* quiet) : m_quiet(quiet) {}

    void Tell(const std::vector<std::string>& remarks) {
        for (const std::string& remark : remarks) {
            if (m_told.insert(remark).second && m_quiet != nullptr) {
                m_quiet->Warn(remark);
            }
        }
    }
    std::size_t Count() const { return m_told.size(); }

private:
    const Quiet* m_quiet;
    std::set<std::string> m_told;
};

}  // namespace map_page
