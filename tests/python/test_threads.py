"""Threads: the interpreter lock is held across every call into the library,
and a thread that calls in while another one is inside (in a callback that
let the lock go) waits until that one has left; what it drops meanwhile
ends after."""

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


def test_a_second_thread_waits_while_a_callback_lets_the_lock_go_and_its_drops_end_after(t, canvas):
    events, dropped, inside = [], [t.Circle()], threading.Event()

    def paint(shape):
        if not inside.is_set():
            ended = t.Item.ended()
            inside.set()
            time.sleep(0.3)  # lets the interpreter lock go while inside the library
            events.append(("paint left", t.Item.ended() - ended))  # nothing ended while the painter ran
        return True

    def other():
        inside.wait()
        dropped.clear()  # the last reference goes on this thread
        events.append("other calls")
        t.Item.live()
        events.append("other returned")

    thread = threading.Thread(target=other)
    thread.start()
    before = t.Item.ended()
    canvas.render(Painter.make(t, paint))
    thread.join()
    assert events == ["other calls", ("paint left", 0), "other returned"]
    assert t.Item.ended() - before == 1 + 2  # then the dropped circle and the two shapes that render made
