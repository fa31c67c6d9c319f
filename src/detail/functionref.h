// SPDX-License-Identifier: Apache-2.0
#ifndef PANELKIT_DETAIL_FUNCTIONREF_H
#define PANELKIT_DETAIL_FUNCTIONREF_H

namespace panelkit
{

template <typename Signature> class FunctionRef;

/// Something to be called, for as long as a call takes that it is given to. Unlike a std::function
/// it owns nothing, so that it asks for no memory, and it is a third of the code.
template <typename Result, typename... Arguments> class FunctionRef<Result(Arguments...)>
{
public:
    template <typename Function>
    FunctionRef(const Function &function) // NOLINT(google-explicit-constructor)
        : m_function(&function), m_call([](const void *what, Arguments... arguments) -> Result {
              return (*static_cast<const Function *>(what))(arguments...);
          })
    {
    }

    Result operator()(Arguments... arguments) const { return m_call(m_function, arguments...); }

private:
    const void *m_function;
    Result (*m_call)(const void *, Arguments...);
};

} // namespace panelkit

#endif // PANELKIT_DETAIL_FUNCTIONREF_H
