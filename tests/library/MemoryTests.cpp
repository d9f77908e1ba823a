#include "automation/com/WideText.h"
#include "tests/library/Training.h"

#include <array>
#include <filesystem>
#include <functional>
#include <utility>

namespace memory_tests {

namespace fs = std::filesystem;
using tests::UserHive;

/// What the library has asked for since its memory began to be scarce, and what becomes of it.
struct Scarcity {
    std::size_t position = 0; ///< of the allocation that fails, from 1; none where it is 0
    bool isLasting = false;   ///< all that follow fail, too
    std::size_t asked = 0;

    bool strikes() noexcept { return ++asked == position || (isLasting && position != 0 && asked > position); }
};

Scarcity scarcity;

void* scarceMalloc(std::size_t size) {
    return scarcity.strikes() ? nullptr : std::malloc(size); // NOLINT(cppcoreguidelines-no-malloc): it stands in for it
}

void* scarceCalloc(std::size_t count, std::size_t size) {
    return scarcity.strikes() ? nullptr
                              : std::calloc(count, size); // NOLINT(cppcoreguidelines-no-malloc): it stands in for it
}

BSTR WINAPI scarceString(const OLECHAR* text, UINT length) {
    return scarcity.strikes() ? nullptr : SysAllocStringLen(text, length);
}

/// Where a loaded library keeps the address of a function that it imports, by name or by number; null where it does not
/// import it.
void** importOf(HMODULE library, std::string_view name, WORD ordinal) {
    auto* const base = reinterpret_cast<std::byte*>(library);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const auto imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (const auto* each = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports); each->Name != 0; ++each) {
        const auto* wanted = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + each->OriginalFirstThunk);
        auto* found = reinterpret_cast<IMAGE_THUNK_DATA*>(base + each->FirstThunk);
        for (; wanted->u1.AddressOfData != 0; ++wanted, ++found) {
            const bool isThis =
                IMAGE_SNAP_BY_ORDINAL(wanted->u1.Ordinal)
                    ? IMAGE_ORDINAL(wanted->u1.Ordinal) == ordinal
                    : name == reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + wanted->u1.AddressOfData)->Name;
            if (isThis) {
                return reinterpret_cast<void**>(&found->u1.Function);
            }
        }
    }
    return nullptr;
}

/// For the length of a scope, another function stands in the place of one that the library imports.
class Replaced : automation::Unmoved {
public:
    template <typename Function>
    Replaced(HMODULE library, std::string_view name, Function* other, WORD ordinal = 0)
        : place_(importOf(library, name, ordinal)) {
        if (place_ != nullptr) {
            was_ = write(reinterpret_cast<void*>(other));
        }
    }
    ~Replaced() {
        if (place_ != nullptr) {
            write(was_);
        }
    }

    [[nodiscard]] bool isFound() const noexcept { return place_ != nullptr; }

private:
    void* write(void* function) {
        DWORD before = 0;
        VirtualProtect(place_, sizeof(*place_), PAGE_READWRITE, &before);
        void* const old = std::exchange(*place_, function);
        VirtualProtect(place_, sizeof(*place_), before, &before);
        return old;
    }

    void** place_;
    void* was_ = nullptr;
};

/// The operation in which memory is scarce, by its place in the order of a question.
class MemoryTest : public tests::Training, public testing::WithParamInterface<std::size_t> {
protected:
    static constexpr std::size_t fermer = 2; ///< Quitter, after it, is called in its stead

    /// Delivers the files of the course once more, and calls what goes before the operation and then, with scarce
    /// memory, the operation.
    HRESULT perform(const Scarcity& scarce) {
        fs::remove(folder_ + L"07305314.ppt"); // mingw-w64 does not overwrite it
        fs::copy_file(folder_ + L"cours.bin", folder_ + L"07305314.ppt");
        const std::array<std::function<HRESULT()>, 4> operations{
            [this] { return init(314); },
            [this] { return module_->TestePoint(); },
            [this] { return module_->Fermer(); },
            [this] { return module_->Quitter(&application_, &window_); },
        };
        for (std::size_t i = 0; i < std::min(GetParam(), fermer); ++i) {
            EXPECT_EQ(operations.at(i)(), S_OK);
        }
        const Replaced memory(library_.handle(), "malloc", scarceMalloc);
        const Replaced zeroed(library_.handle(), "calloc", scarceCalloc);
        const Replaced strings(library_.handle(), "SysAllocStringLen", scarceString, 4);
        EXPECT_TRUE(memory.isFound() && zeroed.isFound() && strings.isFound());
        scarcity = scarce;
        const HRESULT status = operations.at(GetParam())();
        scarcity.position = 0;
        return status;
    }
    /// Leaves the module, with memory, and sees that everything is the learner's.
    void leave() {
        constexpr auto nothingHeld = static_cast<HRESULT>(0x800A005BU);
        const HRESULT closed = module_->Fermer();
        EXPECT_TRUE(closed == S_OK || closed == nothingHeld) << std::hex << closed;
        EXPECT_EQ(module_->Quitter(&application_, &window_), S_OK);
        for (const wchar_t* const name : recentNames) {
            const std::wstring learners = std::wstring(L"C:\\\u00C9l\u00E8ve\\") + name;
            EXPECT_EQ(UserHive::stored(recentFolders, name), UserHive::text(learners, 1));
        }
        EXPECT_EQ(window_, mainWindow());
    }
};

/// Of the allocations of each operation four fail, some with all that follow: the host is told so, or all goes well,
/// and once there is memory again nothing of the learner's is lost.
TEST_P(MemoryTest, LosesNothingWhereMemoryRunsOut) {
    startPowerPoint();
    deliver(314, 2);
    fs::rename(folder_ + L"07305314.ppt", folder_ + L"cours.bin");
    ASSERT_EQ(perform({}), S_OK);
    const std::size_t asked = scarcity.asked;
    ASSERT_GT(asked, 3U);
    leave();
    std::size_t told = 0;
    for (const Scarcity& scarce : {Scarcity{1, true}, Scarcity{asked / 3, false}, Scarcity{asked * 2 / 3, true},
                                   Scarcity{asked * 9 / 10, false}}) {
        SCOPED_TRACE("allocation " + std::to_string(scarce.position) + " of " + std::to_string(asked));
        const HRESULT status = perform(scarce);
        EXPECT_GE(scarcity.asked, scarce.position);
        constexpr auto runTimeOutOfMemory = static_cast<HRESULT>(0x800A0007U);
        EXPECT_TRUE(status == S_OK || status == E_OUTOFMEMORY || status == runTimeOutOfMemory) << std::hex << status;
        told += status == S_OK ? 0 : 1;
        leave();
    }
    EXPECT_GT(told, 0U);
}

INSTANTIATE_TEST_SUITE_P(Operations, MemoryTest, testing::Range(std::size_t{0}, std::size_t{4}));

} // namespace memory_tests
