"""Threads: the interpreter lock is held across every call into the library,
and a thread that calls in while another one is inside (in a callback that
let the lock go) waits until that one has left."""

import threading
import time

from test_errors import Painter


def test_threads_share_objects_and_their_calls_run_one_after_another(t):
    canvas, failures = t.Canvas(), []

    def work():
        try:
            for _ in range(500):
                circle = canvas.add(t.Circle(1.0))
                assert circle.getCanvas() is canvas and canvas.length("x") == 1
        except Exception as error:  # pragma: no cover - reported below
            failures.append(error)

    threads = [threading.Thread(target=work) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert failures == [] and canvas.Count == 2000


def test_a_second_thread_waits_while_a_callback_lets_the_lock_go(t, canvas):
    events, inside = [], threading.Event()

    def paint(shape):
        if not inside.is_set():
            events.append("paint entered")
            inside.set()
            time.sleep(0.3)  # lets the interpreter lock go while inside the library
            events.append("paint left")
        return True

    def other():
        inside.wait()
        events.append("other calls")
        t.Item.live()
        events.append("other returned")

    thread = threading.Thread(target=other)
    thread.start()
    canvas.render(Painter.make(t, paint))
    events.append("render returned")
    thread.join()
    assert events[:3] == ["paint entered", "other calls", "paint left"]
    assert events.index("other returned") > events.index("paint left")


def test_objects_that_other_threads_drop_meanwhile_end_after_the_library_is_left(t, canvas):
    dropped = [t.Circle()]
    seen = []

    def paint(shape):
        if not seen:
            before = t.Item.ended()
            thread = threading.Thread(target=dropped.clear)  # the last reference goes on another thread
            thread.start()
            thread.join()
            seen.append(t.Item.ended() - before)
        return True

    before = t.Item.ended()
    canvas.render(Painter.make(t, paint))
    assert seen == [0]  # not while the painter ran
    assert t.Item.ended() - before == 1 + 2  # then, with the two shapes that render made
