// A dictionary of wide-character keys with longest-prefix lookup: a path-compressed
// character trie. Parsing asks it, at each position of a typed text, which key is the
// longest prefix of what follows (number tokens, custom symbol texts, unit symbols).
#pragma once

#include <cstddef>
#include <cwchar>
#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kxnorth::platform::core::units {

template <typename T>
class UnitsStringDict {
public:
    struct DictNode;

    // The children of a branch node, sorted by character. Branches are small and are
    // searched on every character of every parse, so a flat array beats a tree.
    class Branches {
    public:
        using Entry = std::pair<wchar_t, std::unique_ptr<DictNode>>;
        using iterator = typename std::vector<Entry>::iterator;
        using const_iterator = typename std::vector<Entry>::const_iterator;

        iterator begin() { return m_entries.begin(); }
        iterator end() { return m_entries.end(); }
        const_iterator begin() const { return m_entries.begin(); }
        const_iterator end() const { return m_entries.end(); }
        bool empty() const { return m_entries.empty(); }
        std::size_t size() const { return m_entries.size(); }
        void clear() {
            m_entries.clear();
            m_ascii.reset();
        }
        iterator erase(iterator it) {
            auto const next = m_entries.erase(it) - m_entries.begin();
            Reindex();
            return m_entries.begin() + next;
        }

        iterator find(wchar_t c) { return m_entries.begin() + (Find(c) - m_entries.cbegin()); }
        const_iterator find(wchar_t c) const { return Find(c); }
        void emplace(wchar_t c, std::unique_ptr<DictNode> node) {
            auto at = std::lower_bound(m_entries.begin(), m_entries.end(), c,
                                       [](Entry const& e, wchar_t key) { return e.first < key; });
            m_entries.emplace(at, c, std::move(node));
            Reindex();
        }

    private:
        // Wide branches (the parse dictionary's first characters) also index their
        // ASCII entries directly: that lookup runs at every position of every parse.
        static constexpr std::size_t kIndexFrom = 16;
        static constexpr std::uint16_t kAbsent = 0xFFFF;

        void Reindex() {
            if (m_entries.size() < kIndexFrom || m_entries.size() >= kAbsent) {
                m_ascii.reset();
                return;
            }
            if (!m_ascii) m_ascii = std::make_unique<std::array<std::uint16_t, 128>>();
            m_ascii->fill(kAbsent);
            for (std::size_t i = 0; i < m_entries.size(); ++i) {
                wchar_t const c = m_entries[i].first;
                if (c >= 0 && c < 128) (*m_ascii)[static_cast<std::size_t>(c)] = static_cast<std::uint16_t>(i);
            }
        }

        const_iterator Find(wchar_t c) const {
            if (m_ascii && c >= 0 && c < 128) {
                std::uint16_t const i = (*m_ascii)[static_cast<std::size_t>(c)];
                return i == kAbsent ? m_entries.cend() : m_entries.cbegin() + i;
            }
            auto at = std::lower_bound(m_entries.cbegin(), m_entries.cend(), c,
                                       [](Entry const& e, wchar_t key) { return e.first < key; });
            return at != m_entries.cend() && at->first == c ? at : m_entries.cend();
        }
        std::vector<Entry> m_entries;
        std::unique_ptr<std::array<std::uint16_t, 128>> m_ascii;
    };

    // A node either passes on through a run of characters to its single child (a run
    // node; an empty run with no child is a leaf), or branches on the next character.
    // Its value belongs to the key that ends on arriving at it.
    struct DictNode {
        bool isRun = true;
        std::wstring run;
        T* value = nullptr;
        bool owned = false;
        std::unique_ptr<DictNode> child;                      // run nodes
        Branches branches;                   // branch nodes

        DictNode() = default;
        DictNode(DictNode const&) = delete;
        DictNode& operator=(DictNode const&) = delete;
        ~DictNode() { ReleaseValue(); }

        void ReleaseValue() {
            if (owned) delete value;
            value = nullptr;
            owned = false;
        }
        bool IsLeaf() const { return isRun && run.empty(); }
    };

    struct Match {
        T* value;
        std::size_t length;  // characters of the text the key covers
    };

    UnitsStringDict() = default;
    UnitsStringDict(UnitsStringDict const&) = delete;
    UnitsStringDict& operator=(UnitsStringDict const&) = delete;

    // Stores `value` under `key`. An existing key keeps its value unless `replace`;
    // a replaced value is deleted when it was stored as owned. 0 stored, 1 not.
    int Add(wchar_t const* key, T* value, bool owned, bool replace) {
        if (key == nullptr) return 1;
        DictNode* node = FindOrCreate(&m_root, key);
        if (node->value != nullptr && !replace) return 1;
        if (node->value != value) node->ReleaseValue();
        node->value = value;
        node->owned = owned;
        return 0;
    }

    // Removes `key` and its value (deleted when owned). 0 removed, 1 not found.
    int Erase(wchar_t const* key) {
        if (key == nullptr) return 1;
        std::vector<DictNode*> path;
        DictNode* node = &m_root;
        wchar_t const* p = key;
        for (;;) {
            path.push_back(node);
            if (node->isRun) {
                if (*p == L'\0' || node->run.empty()) break;
                if (std::wcsncmp(p, node->run.c_str(), node->run.size()) != 0) return 1;
                p += node->run.size();
                node = node->child.get();
            } else {
                if (*p == L'\0') break;
                auto it = node->branches.find(*p);
                if (it == node->branches.end()) return 1;
                ++p;
                node = it->second.get();
            }
        }
        if (*p != L'\0' || node->value == nullptr) return 1;
        node->ReleaseValue();
        Prune(path);
        return 0;
    }

    // The value of the longest key that is a prefix of `text`, with its length; the
    // empty key's value (length 0) when no longer key matches. Exact, case-sensitive.
    Match Find(wchar_t const* text) const {
        Match best{m_root.value, 0};
        if (text == nullptr) return best;
        DictNode const* node = &m_root;
        std::size_t pos = 0;
        for (;;) {
            if (node->value != nullptr) best = {node->value, pos};
            if (node->isRun) {
                std::size_t const n = node->run.size();
                if (n == 0) break;
                std::size_t i = 0;
                while (i < n && text[pos + i] == node->run[i]) ++i;
                if (i < n) break;
                pos += n;
                node = node->child.get();
            } else {
                wchar_t const c = text[pos];
                if (c == L'\0') break;
                auto it = node->branches.find(c);
                if (it == node->branches.end()) break;
                ++pos;
                node = it->second.get();
            }
        }
        return best;
    }

    DictNode const& Root() const { return m_root; }

private:
    // A chain for the rest of a key: a run node leading to a leaf, or the leaf itself.
    static std::unique_ptr<DictNode> NewChain(wchar_t const* rest, DictNode** leaf) {
        auto end = std::make_unique<DictNode>();
        *leaf = end.get();
        if (*rest == L'\0') return end;
        auto head = std::make_unique<DictNode>();
        head->run = rest;
        head->child = std::move(end);
        return head;
    }

    // The node at which `key` ends, creating and splitting nodes on the way.
    static DictNode* FindOrCreate(DictNode* node, wchar_t const* p) {
        for (;;) {
            if (*p == L'\0') return node;
            if (!node->isRun) {
                auto it = node->branches.find(*p);
                if (it == node->branches.end()) {
                    DictNode* leaf = nullptr;
                    node->branches.emplace(*p, NewChain(p + 1, &leaf));
                    return leaf;
                }
                ++p;
                node = it->second.get();
                continue;
            }
            if (node->run.empty()) {  // a leaf: the key goes on past it
                DictNode* leaf = nullptr;
                node->run = p;
                node->child = NewChain(L"", &leaf);
                return leaf;
            }
            std::size_t const n = node->run.size();
            std::size_t i = 0;
            while (i < n && p[i] != L'\0' && p[i] == node->run[i]) ++i;
            if (i == n) {
                p += n;
                node = node->child.get();
                continue;
            }
            // The key parts from the run at i: the run's tail keeps the old child.
            auto tail = std::make_unique<DictNode>();
            tail->run = node->run.substr(i + 1);
            tail->child = std::move(node->child);
            std::unique_ptr<DictNode> afterSplit;
            if (tail->run.empty()) {
                afterSplit = std::move(tail->child);
            } else {
                afterSplit = std::move(tail);
            }
            wchar_t const splitChar = node->run[i];
            if (p[i] == L'\0') {
                // The key ends inside the run: cut it into two runs.
                auto middle = std::make_unique<DictNode>();
                middle->run = std::wstring(1, splitChar);
                if (afterSplit->isRun && afterSplit->value == nullptr && !afterSplit->run.empty()) {
                    middle->run += afterSplit->run;
                    middle->child = std::move(afterSplit->child);
                } else {
                    middle->child = std::move(afterSplit);
                }
                // i > 0 here: a key that ends before the run's first character
                // ended at this node, at the top of the loop.
                node->run.resize(i);
                DictNode* target = middle.get();
                node->child = std::move(middle);
                return target;
            }
            auto branch = std::make_unique<DictNode>();
            branch->isRun = false;
            branch->branches.emplace(splitChar, std::move(afterSplit));
            DictNode* leaf = nullptr;
            branch->branches.emplace(p[i], NewChain(p + i + 1, &leaf));
            if (i == 0) {
                // The node itself becomes the branch; its value stays with it.
                node->isRun = false;
                node->run.clear();
                node->child.reset();
                node->branches = std::move(branch->branches);
            } else {
                node->run.resize(i);
                node->child = std::move(branch);
            }
            return leaf;
        }
    }

    // Removes nodes left with neither value nor children, bottom up, and folds
    // branches left with one entry back into runs.
    static void Prune(std::vector<DictNode*>& path) {
        for (std::size_t k = path.size(); k-- > 0;) {
            DictNode* node = path[k];
            if (node->isRun && !node->run.empty() && node->child && node->child->IsLeaf() &&
                node->child->value == nullptr) {
                node->child.reset();
                node->run.clear();
            }
            if (!node->isRun) {
                for (auto it = node->branches.begin(); it != node->branches.end();) {
                    DictNode const* c = it->second.get();
                    it = (c->IsLeaf() && c->value == nullptr) ? node->branches.erase(it) : std::next(it);
                }
                if (node->branches.empty()) {
                    node->isRun = true;
                } else if (node->branches.size() == 1) {
                    Fold(node);
                }
            }
        }
    }

    // A branch with a single entry becomes a run node: the entry's character, plus
    // the child's run when the child holds no value of its own.
    static void Fold(DictNode* node) {
        auto only = node->branches.begin();
        wchar_t const c = only->first;
        std::unique_ptr<DictNode> child = std::move(only->second);
        node->branches.clear();
        node->isRun = true;
        node->run = std::wstring(1, c);
        if (child->isRun && child->value == nullptr && !child->run.empty()) {
            node->run += child->run;
            node->child = std::move(child->child);
        } else {
            node->child = std::move(child);
        }
    }

    DictNode m_root;
};

}  // namespace kxnorth::platform::core::units
