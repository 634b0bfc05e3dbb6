// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Result.h"
#include "SecretService/SecretService.h"

#include <libsecret/secret.h>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

// The module itself, over libsecret.
namespace Keyring
{

namespace
{

using Base::SecretBytes;
using Base::SecretFailure;
using Base::SecretResult;
using Kind = Base::SecretFailure::Kind;

constexpr std::chrono::seconds kPatience{10};           // for an answer of the service
constexpr std::chrono::seconds kPatienceForPerson{120}; // who is asked for a password

const SecretSchema kSchema{
    "app.kest.native",
    SECRET_SCHEMA_NONE,
    {{"account", SECRET_SCHEMA_ATTRIBUTE_STRING}, {nullptr, SECRET_SCHEMA_ATTRIBUTE_STRING}},
    0,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr,
    nullptr};

struct Unreference {
    void operator()(gpointer object) const { g_object_unref(object); }
    void operator()(GHashTable *table) const { g_hash_table_unref(table); }
    void operator()(SecretValue *value) const { secret_value_unref(value); }
    void operator()(GError *error) const { g_error_free(error); }
    void operator()(GList *objects) const { g_list_free_full(objects, g_object_unref); }
};
template <class T>
using Owned = std::unique_ptr<T, Unreference>;

// Gives up the calls that are handed `cancellable()` when the time is over, or at once when
// `stop` is requested.
class Deadline
{
public:
    Deadline(std::chrono::seconds patience, const std::stop_token &given)
        : m_cancellable(g_cancellable_new()), m_givenUp(given, Cancel{m_cancellable.get()}),
          m_watch([this, patience](const std::stop_token &stop) {
              std::unique_lock lock{m_mutex};
              if (!m_wake.wait_for(lock, stop, patience, [&] { return false; }) &&
                  !stop.stop_requested()) {
                  g_cancellable_cancel(m_cancellable.get());
              }
          })
    {
    }
    ~Deadline() = default;
    Deadline(const Deadline &) = delete;
    Deadline &operator=(const Deadline &) = delete;

    GCancellable *cancellable() const { return m_cancellable.get(); }

private:
    struct Cancel {
        GCancellable *cancellable;
        void operator()() const { g_cancellable_cancel(cancellable); }
    };

    Owned<GCancellable> m_cancellable;
    std::stop_callback<Cancel> m_givenUp;
    std::mutex m_mutex;
    std::condition_variable_any m_wake;
    std::jthread m_watch; // last, so that it is joined before what it uses goes
};

// Receives a GError and says what it means.
class Problem
{
public:
    Problem() = default;
    ~Problem() { g_clear_error(&m_error); }
    Problem(const Problem &) = delete;
    Problem &operator=(const Problem &) = delete;

    GError **receive() { return &m_error; }
    bool happened() const { return m_error != nullptr; }

    SecretFailure failure() const
    {
        const bool isLocked =
            g_error_matches(m_error, SECRET_ERROR, SECRET_ERROR_IS_LOCKED) != FALSE;
        return {.kind = isLocked ? Kind::locked : Kind::failed,
                .message = isLocked ? lockedMessage()
                                    : std::string{"The keyring: "} +
                                          (happened() ? m_error->message : "It was refused.")};
    }
    static std::string lockedMessage()
    {
        return "The keyring is locked. Unlock it, and try again.";
    }

private:
    GError *m_error = nullptr;
};

std::unexpected<SecretFailure> isLocked()
{
    return std::unexpected(
        SecretFailure{.kind = Kind::locked, .message = Problem::lockedMessage()});
}

class LibsecretStore : public Base::SecretStore
{
public:
    LibsecretStore(Prompts prompts, std::stop_token stop)
        : m_prompts(prompts), m_stop(std::move(stop))
    {
    }

    SecretResult<std::optional<SecretBytes>> read(std::string_view account) override;
    SecretResult<> write(std::string_view account,
                         std::span<const std::uint8_t> secret) override;
    SecretResult<> erase(std::string_view account) override;

private:
    bool mayPrompt() const { return m_prompts == Prompts::allowed; }
    std::chrono::seconds patience() const
    {
        return mayPrompt() ? kPatienceForPerson : kPatience;
    }
    static SecretResult<Owned<SecretService>> service(const Deadline &deadline);
    SecretResult<Owned<SecretItem>> find(SecretService *service, std::string_view account,
                                         const Deadline &deadline) const;
    SecretResult<Owned<SecretCollection>> openCollection(SecretService *service,
                                                         const Deadline &deadline) const;

    Prompts m_prompts;
    std::stop_token m_stop;
};

Owned<GHashTable> attributesOf(std::string_view account)
{
    return Owned<GHashTable>{
        secret_attributes_build(&kSchema, "account", std::string{account}.c_str(), nullptr)};
}

SecretResult<Owned<SecretService>> LibsecretStore::service(const Deadline &deadline)
{
    Problem problem;
    Owned<SecretService> service{secret_service_get_sync(
        SECRET_SERVICE_OPEN_SESSION, deadline.cancellable(), problem.receive())};
    if (service == nullptr) {
        return std::unexpected(SecretFailure{
            .kind = Kind::noService,
            .message = "There is no keyring (Secret Service) here to keep the key in."});
    }
    return service;
}

// Nothing when there is no such item. A locked item is unlocked first, where the user may be
// asked to.
SecretResult<Owned<SecretItem>> LibsecretStore::find(SecretService *service,
                                                     std::string_view account,
                                                     const Deadline &deadline) const
{
    Problem problem;
    const auto attributes = attributesOf(account);
    int flags = SECRET_SEARCH_LOAD_SECRETS;
    if (mayPrompt()) {
        flags |= SECRET_SEARCH_UNLOCK;
    }
    const Owned<GList> items{secret_service_search_sync(
        service, &kSchema, attributes.get(), static_cast<SecretSearchFlags>(flags),
        deadline.cancellable(), problem.receive())};
    if (problem.happened()) {
        return std::unexpected(problem.failure());
    }
    if (items == nullptr) {
        return Owned<SecretItem>{};
    }
    Owned<SecretItem> item{SECRET_ITEM(g_object_ref(items->data))};
    if (secret_item_get_locked(item.get()) != FALSE) {
        return isLocked();
    }
    return item;
}

// Where new secrets go. Some services do not tell of the items of a locked collection, so
// "there is none" is believed only while this one is open.
SecretResult<Owned<SecretCollection>>
LibsecretStore::openCollection(SecretService *service, const Deadline &deadline) const
{
    Problem problem;
    Owned<SecretCollection> collection{secret_collection_for_alias_sync(
        service, SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE, deadline.cancellable(),
        problem.receive())};
    if (problem.happened()) {
        return std::unexpected(problem.failure());
    }
    if (collection == nullptr) {
        return std::unexpected(SecretFailure{
            .kind = Kind::noService,
            .message = "There is no default keyring to keep the key in. Make one first."});
    }
    if (secret_collection_get_locked(collection.get()) == FALSE) {
        return collection;
    }
    if (!mayPrompt()) {
        return isLocked();
    }
    GList wanted{.data = collection.get(), .next = nullptr, .prev = nullptr};
    const int unlocked = secret_service_unlock_sync(service, &wanted, deadline.cancellable(),
                                                    nullptr, problem.receive());
    if (unlocked < 1) {
        return isLocked();
    }
    return collection;
}

SecretResult<std::optional<SecretBytes>> LibsecretStore::read(std::string_view account)
{
    const Deadline deadline{patience(), m_stop};
    KEST_TRY(const auto keeper, service(deadline));
    KEST_TRY(const auto item, find(keeper.get(), account, deadline));
    if (item == nullptr) {
        KEST_TRY([[maybe_unused]] const auto open, openCollection(keeper.get(), deadline));
        return std::nullopt;
    }
    const Owned<SecretValue> value{secret_item_get_secret(item.get())};
    if (value == nullptr) {
        return std::unexpected(SecretFailure{
            .kind = Kind::failed, .message = "The keyring did not hand out the secret."});
    }
    gsize size = 0;
    const auto *bytes =
        reinterpret_cast<const std::uint8_t *>(secret_value_get(value.get(), &size));
    return SecretBytes{bytes, bytes + size};
}

SecretResult<> LibsecretStore::write(std::string_view account,
                                     std::span<const std::uint8_t> secret)
{
    const Deadline deadline{patience(), m_stop};
    KEST_TRY(const auto keeper, service(deadline));
    KEST_TRY(const auto collection, openCollection(keeper.get(), deadline));
    const auto attributes = attributesOf(account);
    const Owned<SecretValue> value{
        secret_value_new(reinterpret_cast<const char *>(secret.data()),
                         static_cast<gssize>(secret.size()), "application/octet-stream")};
    Problem problem;
    const Owned<SecretItem> item{secret_item_create_sync(
        collection.get(), &kSchema, attributes.get(), "Velvetnook", value.get(),
        SECRET_ITEM_CREATE_REPLACE, deadline.cancellable(), problem.receive())};
    if (item == nullptr) {
        return std::unexpected(problem.failure());
    }
    return {};
}

SecretResult<> LibsecretStore::erase(std::string_view account)
{
    constexpr int kMostCopies = 100; // in other collections; a service may also lie
    const Deadline deadline{patience(), m_stop};
    KEST_TRY(const auto keeper, service(deadline));
    for (int copies = 0; copies < kMostCopies; ++copies) {
        KEST_TRY(const auto item, find(keeper.get(), account, deadline));
        if (item == nullptr) {
            KEST_TRY([[maybe_unused]] const auto open, openCollection(keeper.get(), deadline));
            return {};
        }
        Problem problem;
        if (secret_item_delete_sync(item.get(), deadline.cancellable(), problem.receive()) ==
            FALSE) {
            return std::unexpected(problem.failure());
        }
    }
    return std::unexpected(
        SecretFailure{.kind = Kind::failed, .message = "The keyring did not remove the key."});
}

} // namespace

} // namespace Keyring

extern "C" [[gnu::visibility("default")]] Base::SecretStore *
kestMakeSecretStore(Keyring::Prompts prompts, const std::stop_token &stop);

Base::SecretStore *kestMakeSecretStore(Keyring::Prompts prompts, const std::stop_token &stop)
{
    return new Keyring::LibsecretStore{prompts, stop};
}
