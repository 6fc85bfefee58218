#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <numeric>
#include <optional>
#include <utility>
#include <vector>

namespace glossmill {

/// What an observer of an ArrayController hears of.
enum class ArrayChange {
  Content,    ///< the content array, or what it holds, is another; the arrangement too
  Arranged,   ///< another order or search over the same content
  Selection,  ///< another selection over the same arrangement
};

/// Arranges a shared array of shared objects for a table: sorts and searches it, holds the selection, and adds to and
/// removes from the array itself. Main thread only. T is compared by identity.
template <typename T>
class ArrayController {
 public:
  using Object = std::shared_ptr<T>;
  using Array = std::vector<Object>;
  using Less = std::function<bool(const T&, const T&)>;
  using Filter = std::function<bool(const T&)>;
  /// Brings rows, which are places in the array, into another order.
  using Sorter = std::function<void(const Array& content, std::vector<std::size_t>& rows)>;
  using Observer = std::function<void(ArrayChange)>;

  ArrayController() : m_content(std::make_shared<Array>()) {}

  const std::shared_ptr<Array>& content() const { return m_content; }
  /// Arranges another array; nothing is selected afterwards.
  void setContent(std::shared_ptr<Array> content);

  void addObject(Object object);
  void addObjects(const Array& objects);
  void removeAllObjects();
  /// Removes in one pass every object that `unwanted` names; the order of the others is kept.
  void removeObjectsIf(const std::function<bool(const T&)>& unwanted);

  /// Row by row what the table shows: places in content().
  std::size_t arrangedCount() const { return m_rows.size(); }
  const Object& arrangedObject(std::size_t row) const { return (*m_content)[m_rows[row]]; }
  /// Empty functions arrange everything in the order of the content.
  void setLess(Less less);
  /// Sorts behind what setLess() says.
  void setSorter(Sorter sorter);
  void setFilter(Filter filter);
  /// Sorts and searches anew, after objects have changed.
  void rearrange();

  std::optional<std::size_t> selectedRow() const { return m_selected; }
  Object selectedObject() const { return m_selected ? arrangedObject(*m_selected) : nullptr; }
  /// A row that does not exist clears the selection.
  void setSelectionIndex(std::size_t row);
  void clearSelection();
  /// False, and nothing happens, when no row shows the object.
  bool selectObject(const T* object);
  /// While nothing is selected, the step back goes to the last row and the step forward to the first one.
  bool canSelectPrevious() const { return m_selected ? *m_selected > 0 : !m_rows.empty(); }
  bool canSelectNext() const { return m_selected ? *m_selected + 1 < m_rows.size() : !m_rows.empty(); }
  void selectPrevious();
  void selectNext();

  /// Observers live as long as the controller.
  void addObserver(Observer observer) { m_observers.push_back(std::move(observer)); }

 private:
  void arrange();
  void arrangeKeepingSelection(ArrayChange change);
  void select(std::optional<std::size_t> row);
  void tell(ArrayChange change) const;

  std::shared_ptr<Array> m_content;
  std::vector<std::size_t> m_rows;
  std::optional<std::size_t> m_selected;
  Less m_less;
  Sorter m_sorter;
  Filter m_filter;
  std::vector<Observer> m_observers;
};

template <typename T>
void ArrayController<T>::setContent(std::shared_ptr<Array> content) {
  m_content = std::move(content);
  m_selected.reset();
  arrange();
  tell(ArrayChange::Content);
}

template <typename T>
void ArrayController<T>::addObject(Object object) {
  m_content->push_back(std::move(object));
  arrangeKeepingSelection(ArrayChange::Content);
}

template <typename T>
void ArrayController<T>::addObjects(const Array& objects) {
  m_content->insert(m_content->end(), objects.begin(), objects.end());
  arrangeKeepingSelection(ArrayChange::Content);
}

template <typename T>
void ArrayController<T>::removeAllObjects() {
  m_content->clear();
  m_selected.reset();
  arrange();
  tell(ArrayChange::Content);
}

template <typename T>
void ArrayController<T>::removeObjectsIf(const std::function<bool(const T&)>& unwanted) {
  const Object selected = selectedObject();
  m_selected.reset();
  std::erase_if(*m_content, [&](const Object& object) { return unwanted(*object); });
  arrange();
  for (std::size_t row = 0; selected && row < m_rows.size(); ++row) {
    if (arrangedObject(row) == selected) m_selected = row;
  }
  tell(ArrayChange::Content);
}

template <typename T>
void ArrayController<T>::setLess(Less less) {
  m_less = std::move(less);
  rearrange();
}

template <typename T>
void ArrayController<T>::setSorter(Sorter sorter) {
  m_sorter = std::move(sorter);
  rearrange();
}

template <typename T>
void ArrayController<T>::setFilter(Filter filter) {
  m_filter = std::move(filter);
  rearrange();
}

template <typename T>
void ArrayController<T>::rearrange() {
  arrangeKeepingSelection(ArrayChange::Arranged);
}

template <typename T>
void ArrayController<T>::setSelectionIndex(std::size_t row) {
  select(row < m_rows.size() ? std::optional(row) : std::nullopt);
}

template <typename T>
void ArrayController<T>::clearSelection() {
  select(std::nullopt);
}

template <typename T>
bool ArrayController<T>::selectObject(const T* object) {
  const auto shown = [&](std::size_t place) { return (*m_content)[place].get() == object; };
  const auto found = std::find_if(m_rows.begin(), m_rows.end(), shown);
  if (found == m_rows.end()) return false;
  select(static_cast<std::size_t>(found - m_rows.begin()));
  return true;
}

template <typename T>
void ArrayController<T>::selectPrevious() {
  if (canSelectPrevious()) select(m_selected.value_or(m_rows.size()) - 1);
}

template <typename T>
void ArrayController<T>::selectNext() {
  if (canSelectNext()) select(m_selected ? *m_selected + 1 : 0);
}

template <typename T>
void ArrayController<T>::arrange() {
  m_rows.clear();
  m_rows.reserve(m_content->size());
  for (std::size_t place = 0; place < m_content->size(); ++place) {
    if (!m_filter || m_filter(*(*m_content)[place])) m_rows.push_back(place);
  }
  if (m_less) {
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [this](std::size_t a, std::size_t b) { return m_less(*(*m_content)[a], *(*m_content)[b]); });
  }
  if (m_sorter) m_sorter(*m_content, m_rows);
}

/// Content only grows at its end here, so a place names the same object before and after.
template <typename T>
void ArrayController<T>::arrangeKeepingSelection(ArrayChange change) {
  const std::optional<std::size_t> place = m_selected ? std::optional(m_rows[*m_selected]) : std::nullopt;
  m_selected.reset();
  arrange();
  if (place) {
    const auto found = std::find(m_rows.begin(), m_rows.end(), *place);
    if (found != m_rows.end()) m_selected = static_cast<std::size_t>(found - m_rows.begin());
  }
  tell(change);
}

template <typename T>
void ArrayController<T>::select(std::optional<std::size_t> row) {
  if (row == m_selected) return;
  m_selected = row;
  tell(ArrayChange::Selection);
}

template <typename T>
void ArrayController<T>::tell(ArrayChange change) const {
  for (const Observer& observer : m_observers) observer(change);
}

}  // namespace glossmill
