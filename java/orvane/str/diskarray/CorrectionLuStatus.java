package orvane.str.diskarray;

public class CorrectionLuStatus {
    public int status;
    public int percent;
    public int waiting_number;
}
