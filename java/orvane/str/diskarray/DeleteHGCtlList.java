package orvane.str.diskarray;

public class DeleteHGCtlList {
    public DeleteHGPortList[] port;
}
