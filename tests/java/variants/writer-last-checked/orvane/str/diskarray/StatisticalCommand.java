package orvane.str.diskarray;

/** Lacks mtime, the last field whose failure drops the object. */
public class StatisticalCommand {
    public StatisticalCommand_Info[] lu;
    public KXTime mtime_absent;
}
