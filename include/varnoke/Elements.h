// Walks over the records' lists: for (const SSignPro* property : varnoke::Elements(object)).
#pragma once

#include <afxtempl.h>

namespace varnoke {

/// The elements of a list of pointers, in list order, null ones passed over. The list is borrowed and must
/// not change while it is walked over.
template <class T>
class Elements {
public:
    explicit Elements(const CList<T*, T*>& list) : m_list(&list) {}

    class Iterator {
    public:
        Iterator(const CList<T*, T*>* list, POSITION next) : m_list(list), m_next(next) { ++*this; }
        T* operator*() const { return m_element; }
        bool operator!=(const Iterator& other) const { return m_element != other.m_element; }
        Iterator& operator++() {
            m_element = nullptr;
            while (m_next && !m_element)
                m_element = m_list->GetNext(m_next);
            return *this;
        }

    private:
        const CList<T*, T*>* m_list; // weak
        POSITION m_next;
        T* m_element = nullptr; // null behind the last one
    };

    Iterator begin() const { return Iterator(m_list, m_list->GetHeadPosition()); }
    Iterator end() const { return Iterator(m_list, nullptr); }

private:
    const CList<T*, T*>* m_list; // weak
};

} // namespace varnoke
