#include "platform/observed/ObservedServices.h"

#include "automation/Error.h"

#include <array>

namespace platform {

using automation::Border;
using automation::ObserverPtr;
using automation::Value;

namespace observed {

/// One border with its observer: passes calls on as crossings.
class Gate {
public:
    Gate(Border border, std::u16string_view target, ObserverPtr observer)
        : border_(border), target_(target), observer_(std::move(observer)) {}

    /// The call with its result shown as a value; an observer's error passes.
    template <typename Call, typename... Arguments>
    Value pass(std::u16string_view member, const Call& call, const Arguments&... arguments) const {
        const std::array<Value, sizeof...(Arguments)> values{Value(arguments)...};
        return observer_->around({border_, target_, member, automation::Access::Call, values}, call);
    }

    /// The same for a call that never raises: an observer's error becomes the failing result.
    template <typename Result, typename Call, typename... Arguments>
    Result passOr(Result failed, std::u16string_view member, const Call& call, const Arguments&... arguments) const {
        try {
            return pass(
                       member, [&] { return Value(call()); }, arguments...)
                .template to<Result>();
        } catch (const automation::Error&) {
            return failed;
        }
    }

private:
    Border border_;
    std::u16string_view target_;
    ObserverPtr observer_;
};

class ObservedWindows final : public WindowSystem {
public:
    ObservedWindows(WindowSystem& inner, const ObserverPtr& observer)
        : inner_(inner), gate_(Border::Window, u"Windows", observer) {}

    WindowHandle findWindow(std::u16string_view className) override {
        return gate_.passOr(
            WindowHandle(0), u"findWindow", [&] { return inner_.findWindow(className); }, className);
    }
    std::optional<std::u16string> className(WindowHandle window) override {
        std::optional<std::u16string> name;
        const auto ask = [&] {
            name = inner_.className(window);
            return name.has_value();
        };
        return gate_.passOr(false, u"className", ask, window) ? name : std::nullopt;
    }
    std::u16string title(WindowHandle window) override {
        return gate_.passOr(
            std::u16string(), u"title", [&] { return inner_.title(window); }, window);
    }
    bool isVisible(WindowHandle window) override {
        return gate_.passOr(
            false, u"isVisible", [&] { return inner_.isVisible(window); }, window);
    }
    bool isIconic(WindowHandle window) override {
        return gate_.passOr(
            false, u"isIconic", [&] { return inner_.isIconic(window); }, window);
    }
    bool isHung(WindowHandle window) override {
        return gate_.passOr(
            false, u"isHung", [&] { return inner_.isHung(window); }, window);
    }
    std::uint32_t extendedStyle(WindowHandle window) override {
        const auto ask = [&] { return static_cast<std::int32_t>(inner_.extendedStyle(window)); };
        return static_cast<std::uint32_t>(gate_.passOr(0, u"extendedStyle", ask, window));
    }
    WindowHandle parent(WindowHandle window) override {
        return gate_.passOr(
            WindowHandle(0), u"parent", [&] { return inner_.parent(window); }, window);
    }
    WindowHandle previous(WindowHandle window) override {
        return gate_.passOr(
            WindowHandle(0), u"previous", [&] { return inner_.previous(window); }, window);
    }
    void show(WindowHandle window, std::int32_t command) override {
        const auto ask = [&] { return inner_.show(window, command), true; };
        gate_.passOr(false, u"show", ask, window, command);
    }
    bool setForeground(WindowHandle window) override {
        return gate_.passOr(
            false, u"setForeground", [&] { return inner_.setForeground(window); }, window);
    }
    void send(WindowHandle window, std::uint32_t message) override {
        const auto ask = [&] { return inner_.send(window, message), true; };
        gate_.passOr(false, u"send", ask, window, static_cast<std::int32_t>(message));
    }

private:
    WindowSystem& inner_;
    Gate gate_;
};

class ObservedRegistry final : public Registry {
public:
    ObservedRegistry(Registry& inner, const ObserverPtr& observer)
        : inner_(inner), gate_(Border::Registry, u"Registry", observer) {}

    Status create(std::u16string_view path, Key& key) override {
        return gate_.passOr(
            accessDenied, u"create", [&] { return inner_.create(path, key); }, path);
    }
    Status open(std::u16string_view path, std::uint32_t access, Key& key) override {
        const auto ask = [&] { return inner_.open(path, access, key); };
        return gate_.passOr(accessDenied, u"open", ask, path, static_cast<std::int32_t>(access));
    }
    Status enumerate(Key key, std::uint32_t index, std::size_t bufferLength, std::u16string& name) override {
        const auto ask = [&] { return inner_.enumerate(key, index, bufferLength, name); };
        return gate_.passOr(accessDenied, u"enumerate", ask, static_cast<std::int32_t>(index));
    }
    Status query(Key key, std::u16string_view name, std::size_t& length, std::u16string& data) override {
        const auto ask = [&] { return inner_.query(key, name, length, data); };
        return gate_.passOr(accessDenied, u"query", ask, name, static_cast<std::int32_t>(length));
    }
    Status set(Key key, std::u16string_view name, std::u16string_view data, std::size_t length) override {
        const auto ask = [&] { return inner_.set(key, name, data, length); };
        return gate_.passOr(accessDenied, u"set", ask, name, data, static_cast<std::int32_t>(length));
    }
    /// Closing cannot fail, and a call skipped would leak: observers see it, but the key is closed in any case.
    void close(Key key) override {
        gate_.passOr(false, u"close", [] { return true; });
        inner_.close(key);
    }

private:
    Registry& inner_;
    Gate gate_;
};

class ObservedFiles final : public FileSystem {
public:
    ObservedFiles(FileSystem& inner, const ObserverPtr& observer)
        : inner_(inner), gate_(Border::File, u"Files", observer) {}

    void clearAttributes(std::u16string_view path) override {
        gate_.pass(
            u"clearAttributes", [&] { return inner_.clearAttributes(path), Value(); }, path);
    }
    void rename(std::u16string_view from, std::u16string_view to) override {
        gate_.pass(
            u"rename", [&] { return inner_.rename(from, to), Value(); }, from, to);
    }
    void remove(std::u16string_view path) override {
        gate_.pass(
            u"remove", [&] { return inner_.remove(path), Value(); }, path);
    }
    std::u16string find(std::u16string_view pattern, std::uint32_t attributes) override {
        const auto ask = [&] { return inner_.find(pattern, attributes); };
        return gate_.passOr(std::u16string(), u"find", ask, pattern, static_cast<std::int32_t>(attributes));
    }
    bool makeDirectories(std::u16string_view path) override {
        return gate_.passOr(
            false, u"makeDirectories", [&] { return inner_.makeDirectories(path); }, path);
    }

private:
    FileSystem& inner_;
    Gate gate_;
};

class ObservedKeyboard final : public Keyboard {
public:
    ObservedKeyboard(Keyboard& inner, const ObserverPtr& observer)
        : inner_(inner), gate_(Border::Keyboard, u"Keyboard", observer) {}

    void send(std::u16string_view keys) override {
        gate_.pass(
            u"send", [&] { return inner_.send(keys), Value(); }, keys);
    }

private:
    Keyboard& inner_;
    Gate gate_;
};

class ObservedLocale final : public Locale {
public:
    ObservedLocale(Locale& inner, const ObserverPtr& observer)
        : inner_(inner), gate_(Border::Locale, u"Locale", observer) {}

    std::int32_t getInfo(std::int32_t locale, std::int32_t item, std::span<char> buffer) override {
        const auto ask = [&] { return inner_.getInfo(locale, item, buffer); };
        return gate_.passOr(0, u"getInfo", ask, locale, item, static_cast<std::int32_t>(buffer.size()));
    }

private:
    Locale& inner_;
    Gate gate_;
};

class ObservedServers final : public ApplicationServers {
public:
    ObservedServers(ApplicationServers& inner, const ObserverPtr& observer)
        : inner_(inner), observer_(observer), gate_(Border::Automation, u"Servers", observer) {}

    automation::ObjectPtr attach(std::u16string_view programmaticId) override {
        return observedResult(
            u"attach", [&] { return Value(inner_.attach(programmaticId)); }, programmaticId);
    }
    automation::ObjectPtr create(std::u16string_view programmaticId) override {
        return observedResult(
            u"create", [&] { return Value(inner_.create(programmaticId)); }, programmaticId);
    }

private:
    template <typename Call>
    automation::ObjectPtr observedResult(std::u16string_view member, const Call& call, std::u16string_view id) {
        const Value server = gate_.pass(member, call, id);
        return automation::observed(server.to<automation::ObjectPtr>(), observer_);
    }

    ApplicationServers& inner_;
    ObserverPtr observer_;
    Gate gate_;
};

} // namespace observed

struct ObservedServices::Parts {
    Parts(const Services& inner, const ObserverPtr& observer)
        : windows(inner.windows, observer), registry(inner.registry, observer), files(inner.files, observer),
          keyboard(inner.keyboard, observer), locale(inner.locale, observer), servers(inner.servers, observer) {}

    observed::ObservedWindows windows;
    observed::ObservedRegistry registry;
    observed::ObservedFiles files;
    observed::ObservedKeyboard keyboard;
    observed::ObservedLocale locale;
    observed::ObservedServers servers;
    Services services{windows, registry, files, keyboard, locale, servers};
};

ObservedServices::ObservedServices(const Services& inner, const ObserverPtr& observer)
    : parts_(std::make_unique<Parts>(inner, observer)) {}

ObservedServices::~ObservedServices() = default;

const Services& ObservedServices::services() const noexcept {
    return parts_->services;
}

} // namespace platform
