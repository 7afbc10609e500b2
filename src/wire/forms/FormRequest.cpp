#include "wire/forms/FormRequest.h"

#include "wire/forms/FormWire.h"

#include <functional>
#include <map>

namespace tempodial {

namespace {

using RequestArguments = std::vector<WireValue>;
using RequestWork = std::function<WireValue(FormHands& hands, const RequestArguments& arguments)>;

const std::map<std::string, RequestWork, std::less<>>& FormRequests()
{
    static const std::map<std::string, RequestWork, std::less<>> requests {
        { "forms", [](FormHands& hands, const RequestArguments&) { return ToWire(hands.Forms()); } },
        { "form.type",
            [](FormHands& hands, const RequestArguments& arguments) {
                hands.Type(KeyFromWire(arguments.at(0)), arguments.at(1).text, arguments.at(2).text);
                return WireValue();
            } },
        { "form.choose",
            [](FormHands& hands, const RequestArguments& arguments) {
                hands.Choose(KeyFromWire(arguments.at(0)), arguments.at(1).text, KeyFromWire(arguments.at(2)));
                return WireValue();
            } },
        { "form.check",
            [](FormHands& hands, const RequestArguments& arguments) {
                hands.Check(KeyFromWire(arguments.at(0)), arguments.at(1).text, arguments.at(2).number != 0);
                return WireValue();
            } },
        { "form.click",
            [](FormHands& hands, const RequestArguments& arguments) {
                hands.Click(KeyFromWire(arguments.at(0)), arguments.at(1).text);
                return WireValue();
            } },
        { "form.close",
            [](FormHands& hands, const RequestArguments& arguments) {
                return WireValue::Flag(hands.Close(KeyFromWire(arguments.at(0))));
            } },
    };
    return requests;
}

}

bool IsFormRequest(std::string_view word)
{
    return FormRequests().contains(word);
}

WireValue DoFormRequest(FormHands& hands, const std::string& word, const std::vector<WireValue>& arguments)
{
    return FormRequests().at(word)(hands, arguments);
}

}
