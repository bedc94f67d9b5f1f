package orvane.str.diskarray;

public class StatisticalCommandStatus {
    public StatisticalCommandStatus_Info[] lu;
}
