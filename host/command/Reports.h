#pragma once

#include "host/report/Result.h"
#include "host/world/OutputFile.h"

#include <functional>

namespace host {

/// Files for reports, as a command line names them; empty for those that are not asked for.
struct ReportNames {
    std::string page;  ///< for a browser
    std::string junit; ///< as build servers read it
    std::string json;

    [[nodiscard]] bool isAny() const noexcept { return !page.empty() || !junit.empty() || !json.empty(); }
};

/// The reports that are asked for.
class Reports {
public:
    explicit Reports(const ReportNames& names);

    /// Before work begins: removes earlier ones. Raises what OutputFile::prepare does.
    void prepare(const std::vector<std::filesystem::path>& inputs) const;
    void write(const report::Report& report) const;
    /// Of files that cannot be run, only build servers want to hear.
    void writeWrong(const std::vector<language::WrongLines>& files) const;

private:
    struct Wanted {
        OutputFile file;
        std::function<std::string(const report::Report&)> form;
    };
    void add(const std::string& name, std::string_view beginning, std::string (*form)(const report::Report&));

    std::vector<Wanted> all_;
    std::optional<OutputFile> junit_;
};

} // namespace host
