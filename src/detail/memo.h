// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_MEMO_H
#define PANELKIT_DETAIL_MEMO_H

#include <optional>
#include <tuple>

namespace panelkit
{

/// The key that something was last made for: a struct whose tied() is the std::tie() of its
/// members, those first that are cheap to compare.
template <typename Key> class LastKey
{
public:
    /// Takes a key and says whether it is another one than before; the first always is.
    bool changesTo(const Key &key)
    {
        if (m_key && m_key->tied() == key.tied())
            return false;
        m_key = key;
        ++m_changes;
        return true;
    }

    /// Lets the next key be a first one.
    void forget() { m_key.reset(); }

    /// The key that was taken last; there has to be one.
    const Key &operator*() const { return *m_key; }
    const Key *operator->() const { return &*m_key; }

    /// How often the key changed.
    int changes() const { return m_changes; }

private:
    std::optional<Key> m_key;
    int m_changes = 0;
};

/// A value that is made when it is wanted, and again only when its key has changed.
template <typename Key, typename Value> class Memo
{
public:
    /// The value for this key. When the key is new, `renew` is called with the value as it was.
    template <typename Renew> Value &value(const Key &key, Renew renew)
    {
        if (m_key.changesTo(key))
            renew(m_value);
        return m_value;
    }

    /// Lets the value be made anew when it is wanted next.
    void forget() { m_key.forget(); }

    /// How often the value was made.
    int renewals() const { return m_key.changes(); }

private:
    LastKey<Key> m_key;
    Value m_value{};
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_MEMO_H
