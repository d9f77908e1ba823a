#include "automation/com/WideText.h"
#include "library/registration/Table.h"
#include "tests/library/Library.h"

#include <K73053.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <string>
#include <vector>

namespace type_library_tests {

using automation::com::Bstr;
using automation::com::ComPtr;
namespace table = library::table;

std::wstring wide(std::string_view text) {
    return {text.begin(), text.end()};
}

GUID identityOf(std::string_view text) {
    GUID id{};
    EXPECT_EQ(IIDFromString(wide(text).c_str(), &id), S_OK) << text;
    return id;
}

class TypeLibraryTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(LoadTypeLibEx(tests::Library::path().c_str(), REGKIND_NONE, types_.receive()), S_OK);
    }

    struct Described {
        std::u16string name;
        std::u16string help;
    };
    template <typename Type> static Described described(Type& type, MEMBERID member) {
        Bstr name;
        Bstr help;
        EXPECT_EQ(type.GetDocumentation(member, name.receive(), help.receive(), nullptr, nullptr), S_OK);
        return {name.text(), help.text()};
    }
    static TYPEATTR attributes(ITypeInfo& type) {
        TYPEATTR* held = nullptr;
        EXPECT_EQ(type.GetTypeAttr(&held), S_OK);
        const TYPEATTR copy = *held;
        type.ReleaseTypeAttr(held);
        return copy;
    }

    ComPtr<ITypeLib> types_;
};

TEST_F(TypeLibraryTest, HoldsWhatIsRegistered) {
    std::map<std::wstring, GUID> classes;
    std::map<std::wstring, GUID> interfaces;
    for (UINT i = 0; i < types_->GetTypeInfoCount(); ++i) {
        ComPtr<ITypeInfo> type;
        ASSERT_EQ(types_->GetTypeInfo(i, type.receive()), S_OK);
        const TYPEATTR is = attributes(*type.get());
        const auto text = described(*types_.get(), static_cast<INT>(i));
        EXPECT_FALSE(text.help.empty()) << Bstr(text.name).get();
        (is.typekind == TKIND_COCLASS ? classes : interfaces)[Bstr(text.name).get()] = is.guid;
        if (is.typekind != TKIND_COCLASS) {
            EXPECT_NE(is.wTypeFlags & TYPEFLAG_FDUAL, 0);
        }
    }
    EXPECT_EQ(classes.size(), table::classes.size());
    for (const auto& row : table::classes) {
        EXPECT_TRUE(IsEqualGUID(classes[wide(row.name)], identityOf(row.identity))) << row.name;
    }
    EXPECT_EQ(interfaces.size(), table::interfaces.size() + 2) << "the host's two are not registered";
    EXPECT_TRUE(interfaces.contains(L"AbstractModule"));
    EXPECT_TRUE(interfaces.contains(L"TableauTexte"));
    for (const auto& row : table::interfaces) {
        EXPECT_TRUE(IsEqualGUID(interfaces[wide(row.name)], identityOf(row.identity))) << row.name;
    }
    ComPtr<ITypeInfo> host;
    ASSERT_EQ(types_->GetTypeInfoOfGuid(IID_TableauTexte, host.receive()), S_OK);
    EXPECT_EQ(described(*host.get(), MEMBERID_NIL).help, u"Tableau de type texte");

    TLIBATTR* is = nullptr;
    ASSERT_EQ(types_->GetLibAttr(&is), S_OK);
    EXPECT_TRUE(IsEqualGUID(is->guid, identityOf(table::typeLibrary)));
    EXPECT_EQ(std::to_string(is->wMajorVerNum) + "." + std::to_string(is->wMinorVerNum), table::version);
    types_->ReleaseTLibAttr(is);
}

TEST_F(TypeLibraryTest, NumbersMembersAsLateBoundCallsFindThem) {
    const tests::Library library;
    const auto module = library.create<IDispatch>(CLSID_Module);
    const auto texts = library.create<IDispatch>(CLSID_ComplementInfo);
    const auto files = library.create<IFichiersDeTravail>(CLSID_FichiersDeTravail);
    ASSERT_EQ(files->add(nullptr, nullptr, VARIANT_FALSE), S_OK);
    ComPtr<IFichierDeTravail> file;
    ASSERT_EQ(files->Item(1, file.receive()), S_OK);

    const struct {
        const IID& interfaceId;
        IDispatch* object;
        int members;
    } cases[] = {{IID_AbstractModule, module.get(), 8},
                 {IID_TableauTexte, texts.get(), 3},
                 {IID_IComplementInfo, texts.get(), 6},
                 {IID_IFichiersDeTravail, files.get(), 3},
                 {IID_IFichierDeTravail, file.get(), 3}};
    for (const auto& [interfaceId, object, members] : cases) {
        ComPtr<ITypeInfo> type;
        ASSERT_EQ(types_->GetTypeInfoOfGuid(interfaceId, type.receive()), S_OK);
        int seen = 0;
        FUNCDESC* function = nullptr;
        for (UINT i = 0; type->GetFuncDesc(i, &function) == S_OK; ++i) {
            const MEMBERID id = function->memid;
            const auto named = static_cast<UINT>(function->cParams) + 1;
            const bool isOfIDispatch = id >= 0x60000000;
            type->ReleaseFuncDesc(function);
            if (isOfIDispatch) {
                continue;
            }
            ++seen;
            const auto text = described(*type.get(), id);
            EXPECT_FALSE(text.help.empty());
            std::vector<BSTR> names(named);
            UINT known = 0;
            EXPECT_EQ(type->GetNames(id, names.data(), named, &known), S_OK);
            EXPECT_EQ(known, named);
            std::vector<DISPID> found(named, DISPID_UNKNOWN);
            EXPECT_EQ(object->GetIDsOfNames(IID_NULL, names.data(), named, 0, found.data()), S_OK);
            std::vector<DISPID> expected(named);
            std::iota(expected.begin(), expected.end(), -1); // parameters count from 0
            expected.front() = id;
            EXPECT_EQ(found, expected) << testing::PrintToString(text.name);
            std::for_each(names.begin(), names.end(), SysFreeString);
        }
        EXPECT_EQ(seen, members);
    }
}

TEST_F(TypeLibraryTest, IsGivenByEveryObject) {
    const tests::Library library;
    const auto module = library.create<IDispatch>(CLSID_Module);
    UINT count = 0;
    EXPECT_EQ(module->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1U);
    ComPtr<ITypeInfo> type;
    ASSERT_EQ(module->GetTypeInfo(0, 0, type.receive()), S_OK);
    EXPECT_EQ(described(*type.get(), MEMBERID_NIL).name, u"IModule");
    ComPtr<ITypeInfo> none;
    EXPECT_EQ(module->GetTypeInfo(1, 0, none.receive()), DISP_E_BADINDEX);
    EXPECT_EQ(module->GetTypeInfo(0, 0, nullptr), E_POINTER);
}

} // namespace type_library_tests
