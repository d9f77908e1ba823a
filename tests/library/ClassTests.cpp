#include "automation/LateBound.h"
#include "automation/com/Objects.h"
#include "automation/com/WideText.h"
#include "tests/library/ErrorSaid.h"
#include "tests/library/Library.h"
#include "tests/support/Errors.h"

#include <K73053.h>
#include <gtest/gtest.h>

#include <thread>

namespace class_tests {

using automation::LateBound;
using automation::Value;
using automation::com::Bstr;
using automation::com::ComPtr;
using automation::com::identityOf;
using tests::errorOfCall;
using tests::errorOfInterface;
using tests::ErrorSaid;

const ErrorSaid outOfRange{0x800A0009U, u"K73053", u"L'indice n'appartient pas à la sélection"};

class ClassTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_TRUE(library_.canUnload()); }

    tests::Library library_;
};

TEST_F(ClassTest, StaysLoadedWhileItIsUsed) {
    auto texts = library_.create<IDispatch>(CLSID_ComplementInfo);
    EXPECT_FALSE(library_.canUnload());
    texts = nullptr;
    EXPECT_TRUE(library_.canUnload());
    const auto lock = [&](BOOL on) { return library_.classObject(CLSID_Module)->LockServer(on); };
    EXPECT_EQ(lock(FALSE), E_UNEXPECTED) << "there is none";
    EXPECT_TRUE(library_.canUnload());
    EXPECT_EQ(lock(TRUE), S_OK);
    EXPECT_FALSE(library_.canUnload());
    EXPECT_EQ(lock(FALSE), S_OK);
}

TEST_F(ClassTest, RefusesWhatItDoesNotHave) {
    void* result = &result;
    EXPECT_EQ(library_.getClassObject(IID_IStorage, IID_IClassFactory, &result), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(library_.getClassObject(CLSID_Module, IID_IDispatch, &result), E_NOINTERFACE);
    EXPECT_EQ(library_.getClassObject(CLSID_Module, IID_IClassFactory, nullptr), E_POINTER);
    const auto factory = library_.classObject(CLSID_Module);
    EXPECT_EQ(factory->CreateInstance(factory.get(), IID_IUnknown, &result), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IStorage, &result), E_NOINTERFACE);
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ClassTest, HasTheHostsInterfacesBesideItsOwn) {
    const struct {
        const CLSID& classId;
        std::vector<IID> interfaces;
    } cases[] = {{CLSID_Module, {IID_IModule, IID_AbstractModule}},
                 {CLSID_ComplementInfo, {IID_IComplementInfo, IID_TableauTexte}},
                 {CLSID_FichiersDeTravail, {IID_IFichiersDeTravail}}};
    for (const auto& [classId, interfaces] : cases) {
        const auto object = library_.create<IUnknown>(classId);
        const auto errors = object.as<ISupportErrorInfo>();
        ASSERT_TRUE(errors);
        EXPECT_EQ(errors->InterfaceSupportsErrorInfo(IID_IDispatch), S_OK);
        EXPECT_EQ(errors->InterfaceSupportsErrorInfo(IID_IStorage), S_FALSE);
        for (const IID& interfaceId : interfaces) {
            ComPtr<IUnknown> found;
            EXPECT_EQ(object->QueryInterface(interfaceId, reinterpret_cast<void**>(found.receive())), S_OK);
            EXPECT_EQ(identityOf(found.get()), object);
            EXPECT_EQ(errors->InterfaceSupportsErrorInfo(interfaceId), S_OK);
        }
    }
}

TEST_F(ClassTest, ReadsThroughTheHostsInterfaceWhatQuestionsAdd) {
    const auto own = library_.create<IComplementInfo>(CLSID_ComplementInfo);
    const auto hosts = own.as<TableauTexte>();
    ASSERT_TRUE(hosts);
    EXPECT_EQ(own->ComplementInfo_add(Bstr(u"Élève").get(), 0), S_OK);
    EXPECT_EQ(hosts->add(nullptr, 7), S_OK);
    const LateBound late(automation::com::objectOf(hosts.get()));
    late.call(u"ComplementInfo_add", u"trois", 0);

    LONG count = 0;
    EXPECT_EQ(hosts->count(&count), S_OK);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(own->count(&count), S_OK) << "the class has it under both names";
    EXPECT_EQ(count, 3);
    EXPECT_EQ(late.call(u"count"), Value(3));
    const char16_t* const texts[] = {u"Élève", u"", u"trois"};
    for (std::int32_t i = 1; i <= count; ++i) {
        Bstr text;
        EXPECT_EQ(hosts->item(i, text.receive()), S_OK);
        EXPECT_EQ(text.text(), texts[i - 1]);
        EXPECT_EQ(late.call(u"item", i), Value(texts[i - 1]));
        EXPECT_EQ(late.call(u"ComplementInfo_item", i), Value(texts[i - 1]));
        EXPECT_EQ(late.call(automation::defaultMember, i), Value(texts[i - 1]));
    }
}

TEST_F(ClassTest, GivesCopiesOfWorkingFiles) {
    const auto files = library_.create<IFichiersDeTravail>(CLSID_FichiersDeTravail);
    EXPECT_EQ(files->add(Bstr(u"07305301.ppt").get(), Bstr(u"Méthodologie.ppt").get(), VARIANT_TRUE), S_OK);
    ComPtr<IFichierDeTravail> file;
    ASSERT_EQ(files->Item(1, file.receive()), S_OK);
    Bstr source;
    Bstr destination;
    VARIANT_BOOL isModel = VARIANT_FALSE;
    EXPECT_EQ(file->get_NomSource(source.receive()), S_OK);
    EXPECT_EQ(file->get_NomDest(destination.receive()), S_OK);
    EXPECT_EQ(file->get_Modele(&isModel), S_OK);
    EXPECT_EQ(source.text(), u"07305301.ppt");
    EXPECT_EQ(destination.text(), u"Méthodologie.ppt");
    EXPECT_EQ(isModel, VARIANT_TRUE);
    const LateBound late(automation::com::objectOf(files.get()));
    const LateBound record(late.call(u"Item", 1).to<automation::ObjectPtr>());
    EXPECT_EQ(record.get(u"NomDest"), Value(u"Méthodologie.ppt"));
    EXPECT_EQ(record.get(u"Modele"), Value(true));
}

TEST_F(ClassTest, RaisesAnIndexOutOfRangeAlikeByVtableAndByName) {
    const auto texts = library_.create<TableauTexte>(CLSID_ComplementInfo);
    const auto files = library_.create<IFichiersDeTravail>(CLSID_FichiersDeTravail);
    for (const std::int32_t index : {0, -1, 1, 0x7FFFFFFF}) {
        Bstr text;
        ComPtr<IFichierDeTravail> file;
        EXPECT_EQ(errorOfInterface(texts->item(index, text.receive())), outOfRange);
        EXPECT_EQ(text.get(), nullptr);
        EXPECT_EQ(errorOfInterface(files->Item(index, file.receive())), outOfRange);
        EXPECT_FALSE(file);
        EXPECT_EQ(errorOfCall(*texts.get(), u"item", {index}), outOfRange);
        EXPECT_EQ(errorOfCall(*texts.get(), u"ComplementInfo_item", {index}), outOfRange);
        EXPECT_EQ(errorOfCall(*files.get(), u"Item", {index}), outOfRange);
    }
    EXPECT_EQ(texts->item(1, nullptr), E_POINTER);
}

TEST_F(ClassTest, AnswersWithoutAQuestion) {
    const auto module = library_.create<AbstractModule>(CLSID_Module);
    VARIANT_BOOL isGeneral = VARIANT_TRUE;
    EXPECT_EQ(module->ErreurGenerale(&isGeneral), S_OK);
    EXPECT_EQ(isGeneral, VARIANT_FALSE);
    const ErrorSaid expected{0x800A005BU, u"K73053", u"Variable objet ou variable de bloc With non définie"};
    Bstr cause;
    VARIANT_BOOL remark = VARIANT_TRUE;
    TableauTexte* texts = nullptr;
    EXPECT_EQ(errorOfInterface(module->CauseErreur(cause.receive())), expected);
    EXPECT_EQ(errorOfInterface(module->BravoNuance(&remark)), expected);
    EXPECT_EQ(errorOfInterface(module->Complement(&texts)), expected);
    EXPECT_EQ(texts, nullptr);
    EXPECT_EQ(remark, VARIANT_FALSE);
    for (const char16_t* const name : {u"CauseErreur", u"BravoNuance", u"Complement"}) {
        EXPECT_EQ(errorOfCall(*module.get(), name, {}), expected);
    }
    LONG window = 0;
    IDispatch* application = nullptr;
    EXPECT_EQ(module->InitQuestion(301, nullptr, nullptr, &window, nullptr), E_POINTER);
    EXPECT_NE(errorOfInterface(E_POINTER).description, expected.description) << "nothing is left of an earlier error";
    EXPECT_EQ(module->Quitter(&application, nullptr), E_POINTER);
    EXPECT_EQ(module->Quitter(&application, &window), S_OK) << "nothing is held, nothing was started";
}

TEST_F(ClassTest, ServesClientsOfAnotherApartment) {
    const auto own = library_.create<IComplementInfo>(CLSID_ComplementInfo);
    ComPtr<IStream> passage;
    ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(IID_IComplementInfo, own.get(), passage.receive()), S_OK);
    HANDLE const done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread client([stream = passage.release(), done] {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        void* passed = nullptr;
        EXPECT_EQ(CoGetInterfaceAndReleaseStream(stream, IID_IComplementInfo, &passed), S_OK);
        if (const auto texts = ComPtr<IComplementInfo>::adopt(static_cast<IComplementInfo*>(passed))) {
            EXPECT_EQ(texts->ComplementInfo_add(Bstr(u"Élève").get(), 0), S_OK);
            const LateBound late(automation::com::objectOf(texts.get()));
            EXPECT_EQ(late.call(u"item", 1), Value(u"Élève"));
            const auto error = ::errorOf([&] { late.call(u"item", 2); });
            EXPECT_TRUE(error && error->number() == 9 && error->source() == u"K73053");
        }
        CoUninitialize();
        SetEvent(done);
    });
    // The calls arrive as messages of this thread.
    while (MsgWaitForMultipleObjects(1, &done, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            DispatchMessageW(&message);
        }
    }
    client.join();
    CloseHandle(done);
}

TEST_F(ClassTest, ServesSeveralThreads) {
    std::vector<std::jthread> threads;
    threads.reserve(8);
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&] {
            CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
            VARIANT_BOOL isGeneral = VARIANT_TRUE;
            EXPECT_EQ(library_.create<AbstractModule>(CLSID_Module)->ErreurGenerale(&isGeneral), S_OK);
            CoUninitialize();
        });
    }
}

} // namespace class_tests
