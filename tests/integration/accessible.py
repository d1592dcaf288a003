"""What a screen reader sees."""

import contextlib

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402


def _reading(operation, otherwise):
    """An element that goes away, or a program that is busy, has nothing to say."""
    try:
        return operation()
    except GLib.Error:
        return otherwise


class Accessible:
    """One element of a window."""

    def __init__(self, element):
        self._element = element

    @staticmethod
    def begin():
        Atspi.init()
        Atspi.set_timeout(2000, 15000)

    @staticmethod
    def bus():
        """The address of the bus on which screen readers read."""
        answer = Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
            Gio.DBusCallFlags.NONE, -1)
        return answer.unpack()[0]

    @staticmethod
    def application(pid):
        """The application of a process; None while there is none."""
        return next((each for process, each in Accessible.applications() if process == pid), None)

    @staticmethod
    def applications():
        """All of them, each with its process."""
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass
        for child in Accessible(Atspi.get_desktop(0)).children():
            yield _reading(child._element.get_process_id, 0), child

    def name(self):
        return _reading(self._element.get_name, "")

    def description(self):
        return _reading(self._element.get_description, "")

    def role(self):
        return _reading(self._element.get_role_name, "")

    def text(self):
        """The text of an edited element."""
        return _reading(lambda: Atspi.Text.get_text(self._element, 0, -1), "")

    def value(self):
        """The number of a spin box or a bar, in its own unit; None where there is none."""
        return _reading(lambda: Atspi.Value.get_current_value(self._element), None)

    def set_value(self, number):
        assert Atspi.Value.set_current_value(self._element, number), f"{self.name()} stays"

    def set_text(self, text):
        """As an assistive tool does, without a key."""
        assert Atspi.EditableText.set_text_contents(self._element, text), f"{self.name()} stays"

    def is_in_state(self, state):
        """`state` as in "focused" or "active"."""
        wanted = getattr(Atspi.StateType, state.upper())
        return _reading(lambda: self._element.get_state_set().contains(wanted), False)

    def press(self):
        """Does what a click on it does."""
        self._act(lambda action: action != "SetFocus")

    def press_unanswered(self):
        """As press(), where the program may end before it answers."""
        with contextlib.suppress(GLib.Error):
            self.press()

    def focus(self):
        self._act(lambda action: action == "SetFocus")

    def _act(self, is_wanted):
        actions = [Atspi.Action.get_action_name(self._element, i)
                   for i in range(Atspi.Action.get_n_actions(self._element))]
        number = next((i for i, each in enumerate(actions) if is_wanted(each)), None)
        assert number is not None, f"{self.name()} offers {actions}"
        assert Atspi.Action.do_action(self._element, number), f"{self.name()} does not react"

    def extents(self):
        """Left, top, width and height, on the screen."""
        extents = Atspi.Component.get_extents(self._element, Atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    def extents_of(self, offset):
        """The same of one character of its text."""
        extents = Atspi.Text.get_character_extents(self._element, offset, Atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    def centre(self):
        """On the screen."""
        left, top, width, height = self.extents()
        return left + width // 2, top + height // 2

    def size(self):
        """Width and height."""
        extents = _reading(lambda: Atspi.Component.get_extents(self._element,
                                                               Atspi.CoordType.WINDOW), None)
        return (extents.width, extents.height) if extents else (0, 0)

    def refresh(self):
        """Forgets what was read earlier, which may be out of date."""
        _reading(self._element.clear_cache, None)
        return self

    def children(self):
        self.refresh()
        count = _reading(self._element.get_child_count, 0)
        found = (_reading(lambda: self._element.get_child_at_index(i), None) for i in range(count))
        return [Accessible(each) for each in found if each is not None]

    def all(self):
        """The element and everything in it."""
        yield self
        for child in self.children():
            yield from child.all()

    def find(self, name):
        """The element of that name in it: the control, if there is one, rather than its label,
        and none of the menus, which name many a thing again. None when there is none."""
        found = [each for each in self.all() if each.name() == name
                 and ("menu" not in each.role() or each.role() == "push button menu")]
        return next((each for each in found if each.is_in_state("focusable")),
                    found[0] if found else None)

    def labelled(self, label):
        """The control that a visible label in it stands for; None when there is none. By it a
        screen reader names a list to choose from, whose own name is what is chosen."""
        return next((target for each in self.all()
                     if each.name() == label and each.role() == "label"
                     for target in each._targets(Atspi.RelationType.LABEL_FOR)), None)

    def _targets(self, kind):
        relations = _reading(self._element.get_relation_set, [])
        return [Accessible(relation.get_target(i)) for relation in relations
                if relation.get_relation_type() == kind
                for i in range(relation.get_n_targets())]

    def describe(self, depth=0):
        """Everything in it, a line each, for the eyes of whoever reads a failure."""
        line = f"{'  ' * depth}{self.role()} '{self.name()}' '{self.description()}'\n"
        return line + "".join(child.describe(depth + 1) for child in self.children())
