package orvane.str.diskarray;

public class StatisticalHostCommand {
    public StatisticalHostCommand_Info[] lu;
}
