#pragma once

#include "driver/remote/FaceCall.h"
#include "driver/remote/FaceClass.h"
#include "faults/Interposed.h"
#include "wire/WireFailure.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace tempodial {

/// Makes members of a class out of those of its interface.
template <class Interface> struct FaceMembers
{
    using Member = typename FaceClass<Interface>::Member;

    /// A property that can be read.
    template <class Getter> static Member Property(Getter get)
    {
        return [get](Interface& object, const FaceCall& call) {
            RefusePuts(call);
            return call.Give((object.*get)());
        };
    }
    /// A property that can be read and set by value.
    template <class Getter, class Base, class Value> static Member Property(Getter get, void (Base::*set)(Value value))
    {
        return [get, put = PutOnly(set)](Interface& object, const FaceCall& call) {
            return call.IsPut() ? put(object, call) : Property(get)(object, call);
        };
    }
    /// A property that can be set by value alone.
    template <class Base, class Value> static Member PutOnly(void (Base::*set)(Value value))
    {
        return [set](Interface& object, const FaceCall& call) {
            if (!call.IsPut()) {
                RefuseForm();
            }
            (object.*set)(call.Take<std::decay_t<Value>>(0));
            return WireValue();
        };
    }
    /// A property that says of which kind an object is, which the binding reads past what stands in front of it.
    template <class Getter> static Member Kind(Getter get)
    {
        return [get](Interface& object, const FaceCall& call) {
            RefusePuts(call);
            auto& read = call.IsOwnRead() ? Behind(object) : object;
            return call.Give((read.*get)());
        };
    }
    /// A method, whose arguments are converted to those of the operation.
    template <class Base, class Result, class... Args> static Member Method(Result (Base::*operation)(Args...))
    {
        return [operation](Interface& object, const FaceCall& call) {
            if (!call.IsMethod()) {
                RefuseForm();
            }
            return Apply(object, call, operation, std::index_sequence_for<Args...>());
        };
    }
    /// A member that is reached by a number or by a text.
    template <class Result, class ByNumber, class ByText> static Member Keyed(ByNumber byNumber, ByText byText)
    {
        return [byNumber, byText](Interface& object, const FaceCall& call) {
            const Ref<Result> found = call.At(0).kind == WireKind::Text
                ? (object.*byText)(call.Take<std::string>(0))
                : (object.*byNumber)(call.Take<std::int32_t>(0));
            return call.Give(found);
        };
    }
    /// The object behind what stands in front of it.
    static Interface& Behind(Interface& object)
    {
        const auto* interposed = dynamic_cast<const Interposed<Interface>*>(&object);
        return interposed == nullptr ? object : *interposed->Target();
    }

    /// The member can't be used in the way in which it is.
    [[noreturn]] static void RefuseForm() { throw WireFailure(WireFailure::NoMember, "the member can't be used so"); }

private:
    static void RefusePuts(const FaceCall& call)
    {
        if (call.IsPut() || call.IsPutByReference()) {
            RefuseForm();
        }
    }
    template <class Base, class Result, class... Args, std::size_t... Positions>
    static WireValue Apply(Interface& object, const FaceCall& call, Result (Base::*operation)(Args...),
        std::index_sequence<Positions...> /*positions*/)
    {
        if constexpr (std::is_void_v<Result>) {
            (object.*operation)(call.Take<std::decay_t<Args>>(Positions)...);
            return {};
        } else {
            return call.Give((object.*operation)(call.Take<std::decay_t<Args>>(Positions)...));
        }
    }
};

}
