"""Which picture belongs to which key of the value dialogs."""

PICTURES = {}


def picture(key, *given):
    """Enters a function under its key. It takes the scenes and what else is given here, and answers with a sheet."""
    def enter(draw):
        assert key not in PICTURES, key
        PICTURES[key] = lambda scenes: draw(scenes, *given)
        return draw
    return enter
