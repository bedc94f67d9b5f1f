package orvane.str.diskarray;

public class StatisticalCommand {
    public StatisticalCommand_Info[] lu;
    public KXTime mtime;
}
