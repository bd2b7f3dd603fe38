"""The Python module: dict and strict JSON answers, settings, errors, the GIL
released during parses, and a title in every language."""
import datetime
import json
import threading
import unittest

import nlpdate

NOW = "2024-03-08T10:00:00"


class ParseTest(unittest.TestCase):
    def test_lunch_tomorrow(self):
        answer = nlpdate.parse("Lunch with Ann tomorrow at 1pm", now=NOW)
        self.assertEqual(answer["startDate"], datetime.datetime(2024, 3, 9, 13, 0))
        self.assertIsNone(answer["dueDate"])
        self.assertEqual(answer["recognizeStrings"], ["at 1pm", "tomorrow "])
        self.assertEqual(answer["reminder"], ["TRIGGER:-PT0S"])
        self.assertFalse(answer["isAllDay"])
        self.assertEqual(list(answer), ["repeatFlag", "recognizeStrings", "startDate", "dueDate", "reminder", "isAllDay"])

    def test_nothing_found(self):
        answer = nlpdate.parse("call mom", now=NOW)
        self.assertEqual(answer, {"repeatFlag": "", "recognizeStrings": [], "startDate": None, "dueDate": None,
                                  "reminder": [], "isAllDay": True})

    def test_now_and_base_as_datetime(self):
        answer = nlpdate.parse("下午3点开会", lang="zh_CN", now=datetime.datetime(2024, 3, 8, 10, 0),
                               base=datetime.datetime(2024, 6, 20, 8, 0))
        self.assertEqual(answer["startDate"], datetime.datetime(2024, 6, 20, 15, 0))

    def test_parse_json_is_strict(self):
        text = nlpdate.parse_json("tomorrow\tat noon", now=NOW)
        self.assertEqual(json.loads(text)["recognizeStrings"], ["at noon", "tomorrow\t"])
        self.assertIn("\\t", text)
        self.assertEqual(nlpdate.parse_json("call mom", now=NOW),
                         '{"repeatFlag":"","recognizeStrings":[],"startDate":"","dueDate":"","reminder":[],'
                         '"isAllDay":true}')

    def test_settings(self):
        sunday = "2024-03-10T10:00:00"
        self.assertEqual(nlpdate.parse("下周", lang="zh_CN", now=sunday, first_weekday=2)["startDate"],
                         datetime.datetime(2024, 3, 11, 0, 0))
        self.assertEqual(nlpdate.parse("下周", lang="zh_CN", now=sunday)["startDate"],
                         datetime.datetime(2024, 3, 18, 0, 0))
        night = nlpdate.parse("今晚开会", lang="zh_CN", now=NOW, night=(21, 30))
        self.assertEqual(night["startDate"], datetime.datetime(2024, 3, 8, 21, 30))
        day_first = nlpdate.parse("pay rent 3/4", now=NOW, month_first=False)
        self.assertEqual(day_first["startDate"], datetime.datetime(2024, 4, 3, 0, 0))
        work = nlpdate.parse("3个工作日后", lang="zh_CN", now=NOW, holidays='{"20240311":2}')
        self.assertEqual(work["startDate"].date(), datetime.date(2024, 3, 14))

    def test_errors_are_value_errors(self):
        with self.assertRaises(nlpdate.HolidayTextError):
            nlpdate.parse("tomorrow", now=NOW, holidays='{"20240101":}')
        with self.assertRaises(ValueError):
            nlpdate.parse("tomorrow", now="yesterday")
        with self.assertRaises(ValueError):
            nlpdate.parse("tomorrow", first_weekday=8)
        with self.assertRaises(ValueError):
            nlpdate.parse("tomorrow", morning=(25, 0))
        self.assertTrue(issubclass(nlpdate.InvalidUtf8Error, ValueError))
        with self.assertRaises((TypeError, UnicodeError)):
            nlpdate.parse("bad \udcff surrogate", now=NOW)

    def test_every_language(self):
        titles = {
            "en": ("buy milk tomorrow at 9am", datetime.datetime(2024, 3, 9, 9, 0)),
            "zh_CN": ("明天下午3点开会", datetime.datetime(2024, 3, 9, 15, 0)),
            "ja": ("明日 9時", None),
            "ru": ("завтра", datetime.datetime(2024, 3, 9, 0, 0)),
            "fr": ("réunion lundi 14h", datetime.datetime(2024, 3, 11, 14, 0)),
            "ko": ("내일", datetime.datetime(2024, 3, 9, 0, 0)),
            "pt": ("amanhã", datetime.datetime(2024, 3, 9, 0, 0)),
        }
        for lang, (title, expected) in titles.items():
            with self.subTest(lang=lang):
                answer = nlpdate.parse(title, lang=lang, now=NOW)
                self.assertEqual(json.loads(nlpdate.parse_json(title, lang=lang, now=NOW))["recognizeStrings"],
                                 answer["recognizeStrings"])
                if expected is not None:
                    self.assertEqual(answer["startDate"], expected)
                else:
                    self.assertIsNotNone(answer["startDate"])

    def test_threads_agree(self):
        titles = ["buy milk tomorrow at 9am", "every monday", "明天下午3点开会", "réunion lundi 14h"] * 10
        expected = [nlpdate.parse_json(t, now=NOW) for t in titles]
        results = [None] * len(titles)

        def work(index):
            results[index] = nlpdate.parse_json(titles[index], now=NOW)

        threads = [threading.Thread(target=work, args=(i,)) for i in range(len(titles))]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(results, expected)

    def test_docstrings(self):
        self.assertIn("parse(title", nlpdate.parse.__doc__)
        self.assertIn("strict JSON", nlpdate.parse_json.__doc__)
        self.assertTrue(nlpdate.__doc__)


if __name__ == "__main__":
    unittest.main()
