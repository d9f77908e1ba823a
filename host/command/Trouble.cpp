#include "host/command/Trouble.h"

#include "host/command/Library.h"
#include "host/world/MachineFault.h"

#include <ostream>

namespace host {

ExitCode withTroubleTold(const std::string& program, std::ostream& error, const std::function<ExitCode()>& work) {
    try {
        return work();
    } catch (const WrongFiles& wrong) {
        for (const language::WrongLines& file : wrong.files) {
            for (const language::Remark& remark : file.remarks) {
                error << remark.in(file.file) << '\n';
            }
        }
    } catch (const MachineFault& fault) {
        error << program << ": " << fault.what() << '\n';
        return ExitCode::Machine;
    } catch (const std::exception& raised) {
        error << program << ": " << raised.what() << '\n';
    }
    return ExitCode::WrongUsage;
}

} // namespace host
