"""Parses a few titles from Python with a fixed "now"."""
import nlpdate

NOW = "2024-03-08T10:00:00"
print(nlpdate.parse("Lunch with Ann tomorrow at 1pm", now=NOW)["startDate"])
print(nlpdate.parse_json("明天下午3点开会", lang="zh_CN", now=NOW))
try:
    nlpdate.parse("tomorrow", now=NOW, holidays='{"20240101":}')
except nlpdate.HolidayTextError as error:
    print("refused:", error)
