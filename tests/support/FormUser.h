#pragma once

#include "base/Ref.h"
#include "forms/FormModelFactory.h"

#include <string>
#include <vector>

namespace tempodial {

/// A person at the newest form of a class that can be seen. Working what can't be worked fails (5).
class FormUser
{
public:
    FormUser(Ref<FormModelFactory> forms, std::string className);

    /// The form itself: the newest that can be seen, or else the newest there is; without any fails (91).
    Ref<FormModel> Form() const;
    template <class Model> Ref<Model> Get(const std::string& name) const { return Form()->Control(name).As<Model>(); }

    /// Types a text into a text box or a combo box.
    void Types(const std::string& name, const std::string& text) const;
    /// Picks an entry of a combo box by its text.
    void Chooses(const std::string& name, const std::string& text) const;
    /// Ticks a check box or takes the tick away.
    void Checks(const std::string& name, bool ticked = true) const;
    /// Chooses an option button.
    void Picks(const std::string& name) const;
    void Clicks(const std::string& name) const;
    /// Closes the form by its frame; false when it stays.
    bool Closes() const;

    /// True when the form is on the screen.
    bool Sees() const;
    /// True when the control can be worked now.
    bool CanWork(const std::string& name) const;
    /// The text of a text box or combo box, else the caption.
    std::string Text(const std::string& name) const;
    std::vector<std::string> List(const std::string& name) const;
    /// True when the check box is ticked or the option button is chosen.
    bool IsOn(const std::string& name) const;
    /// Each control in its order, as "name|role and kind|text|tool tip".
    std::vector<std::string> Controls() const;

private:
    Ref<FormModelFactory> mForms;
    std::string mClassName;
};

}
